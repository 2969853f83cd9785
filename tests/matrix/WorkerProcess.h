// TWorkerProcess: a run of matrix_worker, which is told what to do and answers.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <string>

class TWorkerProcess {
public:
    TWorkerProcess();
    // Ends the program when it still runs.
    ~TWorkerProcess();
    TWorkerProcess(const TWorkerProcess&) = delete;

    void WriteLine(const std::string& Line);
    // The next line without its end; false when the program has ended.
    bool ReadLine(std::string& Line);

private:
    HANDLE FProcess = nullptr;
    HANDLE FInput = nullptr;
    HANDLE FOutput = nullptr;
    std::string FRest; // read, and not yet asked for
};
