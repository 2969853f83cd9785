// What formconv needs of the system. ConsoleWindows.cpp and ConsolePortable.cpp.
#pragma once

#include <string>
#include <vector>

// The words of the command line behind the program's name, in UTF-8.
std::vector<std::string> CommandLineWords(int Count, char** Arguments);

// Keeps the system from changing line ends and from translating the bytes of standard input and output.
void UseBinaryConsole();
