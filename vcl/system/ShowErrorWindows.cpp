#include "vcl/system/ShowError.h"

#include "vcl/system/ConstructedFirst.h"
#include "vcl/system/Exceptions.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <cstdlib>
#include <exception>

void ShowError(std::string_view Text)
{
    MessageBoxW(nullptr, TWideText(Text).c_str(), nullptr, MB_OK | MB_ICONERROR | MB_TASKMODAL);
}

namespace {

// Called for an exception that nobody catches. By default the program would end without a word.
[[noreturn]] void EndProgram()
{
    try {
        if (std::current_exception())
            throw;
        ShowError("The program has ended unexpectedly.");
    } catch (const EAbort&) {
        // EAbort is silent by definition.
    } catch (const Exception& Error) {
        ShowError(std::string(Error.ClassName()) + ": " + Error.Message);
    } catch (const std::exception& Error) {
        ShowError(Error.what());
    } catch (...) {
        ShowError("Unknown exception");
    }
    std::_Exit(1);
}

// Before the constructors of the program's static objects, which may throw.
struct TInstall {
    TInstall() { std::set_terminate(&EndProgram); }
};
[[maybe_unused]] CONSTRUCTED_FIRST const TInstall Install;

} // namespace
