// Fails a test that leaves objects, system handles or windows behind, or frees some that it did not make.
#pragma once

#include "tests/support/SystemCounts.h"

#include <cstdint>
#include <gtest/gtest.h>

class TLiveCountGuard : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& Test) override;
    void OnTestEnd(const testing::TestInfo& Test) override;

private:
    int64_t FObjects = 0;
    int64_t FHandles = 0;
    TSystemCounts FSystem;
};
