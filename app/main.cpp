// SPDX-License-Identifier: MIT
#include "WindowProgram.h"
#include "cli/CommandLine.h"

int main(int argc, char **argv)
{
    return lumora::isCommandLine(argc, argv) ? lumora::runCommandLine(argc, argv) : lumora::runWindow(argc, argv);
}
