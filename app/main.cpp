#include "runprotocol.h"

int main(int argc, char *argv[])
{
    return RunProtocol::run(argc, argv);
}
