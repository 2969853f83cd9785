// Using a program of the documentation from outside, as its user would.
#pragma once

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <functional>
#include <stdexcept>
#include <string>

// Asks until the answer is true, and tells What is missing when that takes too long.
void WaitUntil(const std::string& What, const std::function<bool()>& IsDone);
std::string TextOf(HWND Window);
// Waits until a top-level window of that class is shown, and with that text unless it is empty.
HWND WaitForWindow(const char* Class, const std::string& Text = "");
// Waits until Parent has such a child window, at any depth.
HWND WaitForChild(HWND Parent, const char* Class);

// A program that runs. It is ended by force when it is still there at the end.
class TProgram {
public:
    explicit TProgram(const std::string& Command);
    ~TProgram();
    TProgram(const TProgram&) = delete;

    // Waits until the program has ended by itself and returns its exit code.
    int WaitForEnd();

private:
    PROCESS_INFORMATION FProcess = {};
};
