#include "toolbar/TBButtons.h"

#include "tests/toolbar/TBButtonTests.h"

using TButtonsOfToolBars = testing::Types<TkelTBButton, TkelTBCombo, TkelTBPopup, TkelTBComboPopup>;
INSTANTIATE_TYPED_TEST_SUITE_P(TBButtonsTest, TBButtonTests, TButtonsOfToolBars);
