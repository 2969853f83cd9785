// The two objects that every program has. They are created before all other objects of the forms room and deleted last.
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"

#include <utility>

TScreen* Screen = new TScreen(nullptr);
TApplication* Application = new TApplication(nullptr);

namespace {

// Forms that are left when the program ends are deleted while both still exist.
struct TCleanup {
    ~TCleanup()
    {
        delete Application;
        Application = nullptr;
        delete Screen;
        Screen = nullptr;
    }
} Cleanup;

} // namespace
