// SPDX-License-Identifier: GPL-3.0-or-later
// The write test of an output name, made without following links or opening special files.
#include "platform/writetest.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <QFileInfo>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace WriteTest {

#ifdef Q_OS_WIN

bool occupied(const QString &name)
{
    return QFileInfo::exists(name) || QFileInfo(name).isSymLink();
}

bool createAndRemove(const QString &name)
{
    if (name.contains(QChar(0)))
        return false;
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    return file.remove();
}

#else

bool occupied(const QString &name)
{
    struct stat status;
    return !name.contains(QChar(0)) && ::lstat(QFile::encodeName(name).constData(), &status) == 0;
}

bool createAndRemove(const QString &name)
{
    if (name.isEmpty() || name.contains(QChar(0)))
        return false;
    const QByteArray path = QFile::encodeName(name);

    // What stands at the name decides how it is opened: an earlier file is opened as it is (its
    // other hard links keep their contents), a new one is created exclusively, and a link is taken
    // away first, so what it points to is never touched.
    int flags = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    struct stat status;
    if (::lstat(path.constData(), &status) == 0) {
        if (S_ISLNK(status.st_mode)) {
            if (::unlink(path.constData()) != 0)
                return false;
            flags |= O_CREAT | O_EXCL;
        } else if (!S_ISREG(status.st_mode)) {
            return false; // opening a pipe or a device could block the job for good
        }
    } else {
        flags |= O_CREAT | O_EXCL;
    }

    const int file = ::open(path.constData(), flags, 0666);
    if (file < 0)
        return false;
    // Something swapped in between the look and the opening must still be a plain file.
    const bool regular = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    ::close(file);
    return regular && ::unlink(path.constData()) == 0;
}

#endif

} // namespace WriteTest
