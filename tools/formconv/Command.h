// formconv's command line.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// Does what Words ask for and returns the exit status: 0, or 1 with one line (or the usage) in Errors and the output
// file as it was.
int RunFormconv(const std::vector<std::string>& Words, std::ostream& Errors);
