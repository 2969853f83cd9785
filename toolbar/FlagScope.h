// TFlagScope: sets a flag, and clears it at the end of the block, however that comes.
#pragma once

class TFlagScope {
public:
    explicit TFlagScope(bool& Flag) : FFlag(Flag) { FFlag = true; }
    ~TFlagScope() { FFlag = false; }
    TFlagScope(const TFlagScope&) = delete;

private:
    bool& FFlag;
};
