#include "tests/matrix/CrashReport.h"

#include "tests/matrix/GuardedHeap.h"
#include "tests/support/Dialogs.h"
#include "vcl/system/WindowsApi.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr auto HangLimit = 10s;

// Of this program, or nullptr.
HMODULE ModuleOf(DWORD64 Code)
{
    HMODULE Module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(Code), &Module);
    return Module;
}

// The calls that led to Context, as offsets into this program, for llvm-symbolizer --relative-address.
void PrintCalls(CONTEXT Context)
{
    const auto Program = reinterpret_cast<DWORD64>(GetModuleHandleW(nullptr));
    for (int I = 0; I < 60 && Context.Rip; ++I) {
        if (ModuleOf(Context.Rip) == GetModuleHandleW(nullptr))
            std::printf(" 0x%llx", Context.Rip - Program);
        DWORD64 Base = 0;
        auto* const Entry = RtlLookupFunctionEntry(Context.Rip, &Base, nullptr);
        if (!Entry) {
            if (IsBadReadPtr(reinterpret_cast<void*>(Context.Rsp), 8))
                return;
            Context.Rip = *reinterpret_cast<DWORD64*>(Context.Rsp);
            Context.Rsp += 8;
            continue;
        }
        void* Handler = nullptr;
        DWORD64 Frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, Base, Context.Rip, Entry, &Context, &Handler, &Frame, nullptr);
    }
}

LONG CALLBACK Report(EXCEPTION_POINTERS* Fault)
{
    const EXCEPTION_RECORD& Record = *Fault->ExceptionRecord;
    const bool Memory = Record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
    const bool Fatal = Memory || Record.ExceptionCode == EXCEPTION_STACK_OVERFLOW ||
                       Record.ExceptionCode == EXCEPTION_ILLEGAL_INSTRUCTION ||
                       Record.ExceptionCode == EXCEPTION_INT_DIVIDE_BY_ZERO || Record.ExceptionCode == 0xC0000374;
    if (!Fatal)
        return EXCEPTION_CONTINUE_SEARCH;
    auto* const Address = Memory ? reinterpret_cast<void*>(Record.ExceptionInformation[1]) : nullptr;
    const HMODULE Module = ModuleOf(Fault->ContextRecord->Rip);
    const bool Guarded = IsInGuardedHeap(Address);
    // The system's own code tries addresses and handles the fault.
    if (Memory && !Guarded && Module && Module != GetModuleHandleW(nullptr))
        return EXCEPTION_CONTINUE_SEARCH;
    static std::atomic<bool> Reported = false;
    if (Reported.exchange(true))
        return EXCEPTION_CONTINUE_SEARCH;
    std::printf("failed crash: %s, code %lx, address %p; calls:",
                Guarded ? "an object is used that is gone" : "a fault", Record.ExceptionCode, Address);
    PrintCalls(*Fault->ContextRecord);
    std::printf("\n");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_CONTINUE_SEARCH;
}

std::atomic<int> Steps = 0;
HANDLE MainThread = nullptr;

[[noreturn]] void ReportHang()
{
    std::printf("failed hangs; it shows: ");
    for (char C : DescribeOwnWindows())
        std::putchar(C == '\n' ? ';' : C);
    SuspendThread(MainThread);
    CONTEXT Context{};
    Context.ContextFlags = CONTEXT_FULL;
    if (GetThreadContext(MainThread, &Context)) {
        std::printf(" calls:");
        PrintCalls(Context);
    }
    std::printf("\n");
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 4);
    std::_Exit(4);
}

void Watch()
{
    int Seen = Steps;
    for (auto Since = std::chrono::steady_clock::now();; std::this_thread::sleep_for(100ms)) {
        const auto Now = std::chrono::steady_clock::now();
        if (Steps != Seen) {
            Seen = Steps;
            Since = Now;
        } else if (Now > Since + HangLimit) {
            ReportHang();
        }
    }
}

} // namespace

void ReportCrashes()
{
    AddVectoredExceptionHandler(1, Report);
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &MainThread, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    std::thread(Watch).detach();
}

void IsAlive()
{
    ++Steps;
}
