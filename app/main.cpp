// SPDX-License-Identifier: MIT
#include "WindowProgram.h"

int main(int argc, char **argv)
{
    return lumora::runWindow(argc, argv);
}
