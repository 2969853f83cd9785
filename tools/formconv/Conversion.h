// One run of formconv, without the files and the console around it.
#pragma once

#include <string>
#include <string_view>

enum class TFormTarget { Text, Binary, Resource };

struct TConversionResult {
    bool Done = false;
    std::string Output; // the form when Done
    std::string Lines;  // where it stands in the text (TFormLines), for the target Binary when the input is text
    std::string Error;  // "NAME:LINE: message" or "NAME@OFFSET: message" otherwise
};

// Converts a form of whatever kind. Name is what the input is called in errors. A form that is of the target's kind
// already is checked; text is then laid out anew, and a binary form keeps its bytes but not its resource header.
TConversionResult ConvertForm(std::string_view Input, const std::string& Name, TFormTarget Target,
                              std::string_view LineEnd);
