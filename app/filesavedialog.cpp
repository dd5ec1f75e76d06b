#include "filesavedialog.h"

namespace SaveAsOnly {

bool startStep(MainWindow &)
{
    return true;
}

} // namespace SaveAsOnly
