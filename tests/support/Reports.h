// TReports: what goes to the exception sink during a test, in place of a message box.
#pragma once

#include "vcl/system/Guard.h"
#include "vcl/system/Object.h"

#include <string>
#include <vector>

// They do not nest.
class TReports {
public:
    TReports() : FBefore(SetExceptionSink(&TReports::Note)) { FTexts.clear(); }
    ~TReports() { SetExceptionSink(FBefore); }
    TReports(const TReports&) = delete;

    // "TTimer: the text" of each, or only the text where there is no sender.
    const std::vector<std::string>& Texts() const { return FTexts; }

private:
    static void Note(TObject* Sender)
    {
        const std::string From = Sender ? std::string(Sender->ClassName()) + ": " : "";
        try {
            throw;
        } catch (const std::exception& Error) {
            FTexts.push_back(From + Error.what());
        } catch (...) {
            FTexts.push_back(From + "unknown");
        }
    }

    static inline std::vector<std::string> FTexts;
    TExceptionSink FBefore;
};
