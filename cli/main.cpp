// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "WindowStart.h"

int main(int argc, char **argv)
{
    return lumora::isCommandLine(argc, argv) ? lumora::runCommandLine(argc, argv) : lumora::startWindow(argc, argv);
}
