// Fails a test that leaves objects or system handles behind, or frees some that it did not make.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>

class TLiveCountGuard : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& Test) override;
    void OnTestEnd(const testing::TestInfo& Test) override;

private:
    int64_t FObjects = 0;
    int64_t FHandles = 0;
};
