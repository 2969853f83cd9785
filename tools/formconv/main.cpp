// formconv: converts form files between text and binary.

#include "tools/formconv/Command.h"
#include "tools/formconv/Console.h"

#include <iostream>

int main(int Count, char** Arguments)
{
    UseBinaryConsole();
    return RunFormconv(CommandLineWords(Count, Arguments), std::cerr);
}
