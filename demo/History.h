// THistory: the states that the document has been in, for undoing.
#pragma once

#include "demo/Drawing.h"

#include <vector>

struct TDocumentState {
    AnsiString Text;
    TSharedPicture Picture;

    friend bool operator==(const TDocumentState& A, const TDocumentState& B) = default;
};

class THistory {
public:
    // Forgets everything; State is the only one.
    void Start(TDocumentState State);
    // What came behind the state that was current is forgotten. Changes that follow each other quickly, as when text is
    // typed, become one.
    void Record(TDocumentState State);

    // Whether there is a state before (-1) or behind (1) the current one; Step goes there.
    bool CanStep(int By) const;
    const TDocumentState& Step(int By);

private:
    std::vector<TDocumentState> FStates;
    size_t FCurrent = 0;
    uint64_t FRecorded = 0; // when, in milliseconds
};
