// SPDX-License-Identifier: MIT
// The unchanged program of the window, for bench/compare-start.
#include "app/WindowProgram.h"

int main(int argc, char **argv)
{
    return lumora::runWindow(argc, argv);
}
