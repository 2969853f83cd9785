#include "tests/support/Dialogs.h"

// Programs outside Windows have no dialogs here.

void AnswerDialogs()
{}

std::string DescribeOwnWindows()
{
    return "  no windows\n";
}
