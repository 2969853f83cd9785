#include "tools/formconv/Console.h"

std::vector<std::string> CommandLineWords(int Count, char** Arguments)
{
    return {Arguments + 1, Arguments + Count};
}

void UseBinaryConsole()
{}
