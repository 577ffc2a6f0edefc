// SPDX-License-Identifier: MIT
// The window's program as it is, for bench/compare-start.
#include "app/WindowProgram.h"

int main(int argc, char **argv)
{
    return lumora::runWindow(argc, argv);
}
