#include "vcl/menus/MenuFont.h"

#include <optional>

namespace {
std::optional<LOGFONTW> Known;
}

const LOGFONTW& SystemMenuFont()
{
    if (!Known) {
        NONCLIENTMETRICSW Metrics{};
        Metrics.cbSize = sizeof Metrics;
        if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof Metrics, &Metrics, 0))
            GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof Metrics.lfMenuFont, &Metrics.lfMenuFont);
        Known = Metrics.lfMenuFont;
    }
    return *Known;
}

void ForgetSystemMenuFont()
{
    Known.reset();
}
