// Message boxes and the system's other dialogs, as they come up during a test. An unexpected one is answered by the
// watchdog and fails the test.
#pragma once

#include <string>
#include <vector>

// While one of these lives, dialogs are expected: each is answered with the given button, IDOK for example, and noted.
// They do not nest.
class TExpectDialogs {
public:
    explicit TExpectDialogs(int Button);
    ~TExpectDialogs();
    TExpectDialogs(const TExpectDialogs&) = delete;

    // "Caption: text" of every dialog so far.
    std::vector<std::string> Texts() const;
};

// Answers the dialogs that this process shows. Called by the watchdog, again and again.
void AnswerDialogs();

// One line for each visible top-level window of this process: class, caption and texts.
std::string DescribeOwnWindows();
