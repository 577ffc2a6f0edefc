// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

int main(int argc, char **argv)
{
    return lumora::runCommandLine(argc, argv);
}
