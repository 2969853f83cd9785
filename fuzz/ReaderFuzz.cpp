// Feeds the reader with anything, as the binary form of sample components. What is broken must leave nothing behind;
// what is accepted can be written and read for ever without a change.
#include "tests/classes/SampleComponents.h"
#include "vcl/classes/FixupList.h"
#include "vcl/classes/StringStream.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/LiveCount.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

void Check(bool Condition)
{
    if (!Condition)
        std::abort();
}

std::string Bytes(TComponent* Root)
{
    TMemoryStream Stream;
    WriteComponent(Stream, Root);
    return std::string(Stream.View());
}

// What comes of a form when it is read and written.
std::string Copied(const std::string& Input)
{
    std::unique_ptr<TSampleForm> Form(new TSampleForm);
    LoadBytes(Form.get(), Input);
    return Bytes(Form.get());
}

void Fuzz(const std::string& Input)
{
    std::unique_ptr<TSampleForm> Form(new TSampleForm);
    try {
        LoadBytes(Form.get(), Input);
    } catch (const Exception&) {
        Check(Form->ComponentCount == 0 && Form->Children.empty() && Form->ComponentState.Empty());
        return;
    }
    // Once, to settle: what stood in an object that takes no children belongs to the form from now on.
    const std::string Settled = Copied(Bytes(Form.get()));
    Check(Copied(Settled) == Settled);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    Fuzz({reinterpret_cast<const char*>(Data), Size});
    GlobalFixups().Compact();
    SampleLog.clear();
    static const int64_t KeptForGood = LiveObjectCount();
    Check(LiveObjectCount() == KeptForGood);
    return 0;
}
