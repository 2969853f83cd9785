#include "vcl/system/Guard.h"

#include "vcl/system/Exceptions.h"
#include "vcl/system/ShowError.h"

namespace {

void ShowException(TObject*)
{
    try {
        throw;
    } catch (const EAbort&) {
        // EAbort is silent by definition.
    } catch (const std::exception& E) {
        ShowError(E.what());
    } catch (...) {
        ShowError("Unknown exception");
    }
}

TExceptionSink Sink = &ShowException;

} // namespace

TExceptionSink SetExceptionSink(TExceptionSink NewSink) noexcept
{
    return std::exchange(Sink, NewSink ? NewSink : &ShowException);
}

void ReportException(TObject* Sender) noexcept
{
    Sink(Sender);
}
