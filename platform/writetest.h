// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_WRITETEST_H
#define FMTASK_WRITETEST_H

#include <QString>

// The write test of an output name before the driver writes there. The name in its folder is what
// is tested and replaced: a link at the name is removed, never followed, and nothing outside the
// folder is created or changed.
namespace WriteTest {

// Whether anything stands at the name, a link that points nowhere included.
bool occupied(const QString &name);

// Creates the file at the name and removes it again, the only reliable test of write access; the
// driver then writes a fresh file. A regular file or a link already there is removed (the user
// agreed to replace it); a folder, pipe, socket or device is left alone and fails the test, as does
// a name the system cannot take whole (a NUL would cut it short and name another file).
bool createAndRemove(const QString &name);

} // namespace WriteTest

#endif // FMTASK_WRITETEST_H
