#include "runprotocol.h"

#include <QtPlugin>

// The modern style is linked in and found by name through QStyleFactory.
Q_IMPORT_PLUGIN(WindowsModernStylePlugin)

int main(int argc, char *argv[])
{
    return RunProtocol::run(argc, argv);
}
