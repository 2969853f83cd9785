#include "demo/History.h"

#include <utility>

namespace {

constexpr size_t MostStates = 200;
constexpr uint64_t Quickly = 700; // milliseconds

} // namespace

void THistory::Start(TDocumentState State)
{
    FStates = {std::move(State)};
    FCurrent = 0;
    FRecorded = 0;
}

void THistory::Record(TDocumentState State)
{
    if (State == FStates[FCurrent])
        return;
    const uint64_t Before = std::exchange(FRecorded, GetTickCount64());
    const bool SamePicture = State.Picture == FStates[FCurrent].Picture;
    FStates.resize(FCurrent + 1);
    if (SamePicture && FCurrent > 0 && FRecorded - Before < Quickly)
        FStates.pop_back();
    FStates.push_back(std::move(State));
    if (FStates.size() > MostStates)
        FStates.erase(FStates.begin());
    FCurrent = FStates.size() - 1;
}

bool THistory::CanStep(int By) const
{
    return By < 0 ? FCurrent > 0 : FCurrent + 1 < FStates.size();
}

const TDocumentState& THistory::Step(int By)
{
    FRecorded = 0;
    FCurrent = By < 0 ? FCurrent - 1 : FCurrent + 1;
    return FStates[FCurrent];
}
