// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_SPOOLWRITER_H
#define VELLUMIO_SPOOLWRITER_H

#include "backend/spooljob.h"

#include <string>

// The backend's one task: a job's document and description placed in its owner's spool folder,
// written as that owner.
namespace Spool {

struct Outcome
{
    BackendStatus status = BackendStatus::Ok;
    std::string message; // a line for the scheduler's log: "ERROR: ..." or "INFO: ..."

    bool ok() const { return status == BackendStatus::Ok; }
};

// Checks the user, prepares the spool root and the user's folder as root, opens the document,
// drops to the user for good and writes the job. Called as root; the process stays the user's.
Outcome spoolJob(const Arguments &arguments, const std::string &root);

} // namespace Spool

#endif // VELLUMIO_SPOOLWRITER_H
