// SPDX-License-Identifier: GPL-3.0-or-later
// The program the driver starts once per print job. The modern style comes with the style library
// it links, so QStyleFactory finds it by name.
#include "app/runprotocol.h"

int main(int argc, char *argv[])
{
    return RunProtocol::run(argc, argv);
}
