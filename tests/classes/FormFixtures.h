// Helpers of the form tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The form files beside the tests, by name without path and extension; the same everywhere.
std::vector<std::string> FormFixtureNames();
std::string FormFixture(const std::string& Name);

// Text with the line ends of form files in place of "\n".
std::string WithCrLf(std::string_view Text);

// The bytes that hexadecimal digits stand for; other characters are skipped, and quoted text stands for itself.
std::string Bytes(std::string_view Hex);
// The reverse, for messages.
std::string Hex(std::string_view Bytes);
