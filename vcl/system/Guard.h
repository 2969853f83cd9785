// The way into our code for everything that the system calls: window procedures, hooks, subclass procedures, timers.
// No exception may cross the system's frames; the guard hands it to the exception sink.
#pragma once

class TObject;

// Gets the exception that is being handled: it runs inside a catch block and rethrows to look at it. It must not throw
// itself. Sender is where the exception came from, or nullptr.
using TExceptionSink = void (*)(TObject* Sender);

// Makes Sink the one and returns the one before. nullptr: back to the default, which shows the exception's text, and
// nothing for EAbort. The application installs its own.
TExceptionSink SetExceptionSink(TExceptionSink Sink) noexcept;

// Called inside a catch block: hands the exception that is being handled to the sink.
void ReportException(TObject* Sender) noexcept;

// Calls Function. An exception that leaves it is reported with Sender, and false is returned.
template <class Function>
bool Guarded(TObject* Sender, Function&& Body) noexcept
{
    try {
        Body();
        return true;
    } catch (...) {
        ReportException(Sender);
        return false;
    }
}
