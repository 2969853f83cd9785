// Any handler of any event may delete, throw, change parents or show forms. Each test starts matrix_worker for one
// class, which enumerates the events and runs the cases; what ends it fails only the case that did.
#include "tests/matrix/EventProbe.h"
#include "tests/matrix/Exclusions.h"
#include "tests/matrix/WorkerProcess.h"
#include "tests/support/Watchdog.h"
#include "vcl/classes/Component.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

// The components of the program that publish events. One that cannot be made says so in its test.
std::vector<TClass> ClassesWithEvents()
{
    std::vector<TClass> Classes;
    for (TClass Class : RegisteredClasses())
        if (Class->InheritsFrom(TComponent::StaticClass()) && !PublishedEvents(Class).empty())
            Classes.push_back(Class);
    return Classes;
}

class HandlerMatrix : public testing::TestWithParam<TClass> {
protected:
    static void TearDownTestSuite() { Worker.reset(); }

    // Has the worker do something and gives each line of its answer to Take. False when the worker ended before its
    // answer did; the next command starts it anew.
    template <class TFunction>
    bool Ask(const std::string& Command, const TFunction& Take)
    {
        if (!Worker)
            Worker = std::make_unique<TWorkerProcess>();
        Worker->WriteLine(Command);
        for (std::string Line; Worker->ReadLine(Line);) {
            if (Line == "end")
                return true;
            const size_t Space = std::min(Line.find(' '), Line.size());
            Take(Line.substr(0, Space), Line.substr(std::min(Space + 1, Line.size())));
        }
        Worker.reset();
        return false;
    }

    std::string Name() const { return GetParam()->ClassName(); }

    // A setting, an event and a stimulus that raises it.
    struct TRaised {
        int Setting, Event, Stimulus;
    };

    void FindEvents()
    {
        std::string Failed;
        const bool Found = Ask("find " + Name(), [&](const std::string& Word, const std::string& Rest) {
            std::istringstream Numbers(Rest);
            if (Word == "action") {
                FActions.push_back(Rest);
            } else if (Word == "raised") {
                TRaised& Row = FRaised.emplace_back();
                Numbers >> Row.Setting >> Row.Event >> Row.Stimulus;
            } else if (Word == "unknown") {
                ADD_FAILURE() << Rest << " has a signature that is not in the table of EventProbe.cpp";
            } else if (Word == "abstract") {
                FAbstract = true;
            } else {
                Failed += " " + Rest;
            }
        });
        EXPECT_TRUE(Found) << "without handlers:" << Failed;
    }

    void RunCase(const TRaised& Row, size_t Action)
    {
        const TPropertyInfo* Event = PublishedEvents(GetParam())[Row.Event];
        if (WhyNotRun(GetParam(), Event->Name, FActions[Action])) {
            ++NotRun;
            return;
        }
        std::string Case;
        bool Failed = false;
        std::ostringstream Command;
        Command << "run " << Name() << " " << Row.Setting << " " << Row.Event << " " << Row.Stimulus << " " << Action;
        const bool Ended = Ask(Command.str(), [&](const std::string& Word, const std::string& Rest) {
            if (Word == "case") {
                Case = Rest;
            } else if (Word == "failed") {
                Failed = true;
                ADD_FAILURE() << Case << ": " << Rest << " (" << Command.str() << ")";
            } else {
                Skipped += Word == "skipped";
            }
        });
        EXPECT_TRUE(Ended || Failed) << Case << ": the program has ended (" << Command.str() << ")";
        ++Cases;
    }

    std::vector<TRaised> FRaised;
    std::vector<std::string> FActions; // what handlers do
    bool FAbstract = false;            // there are no objects of the class by its name
    static inline int Cases = 0;
    static inline int NotRun = 0;
    static inline int Skipped = 0; // of the cases, as the action had nothing to act on
    static inline std::unique_ptr<TWorkerProcess> Worker;
};

TEST_P(HandlerMatrix, NoHandlerDoesHarm)
{
    if (const char* Reason = WhyOpen(GetParam()))
        GTEST_SKIP() << Reason;
    TWatchdog::AllowLonger(10);
    FindEvents();
    if (FAbstract)
        GTEST_SKIP() << "not made by its name";
    const std::vector<const TPropertyInfo*> Events = PublishedEvents(GetParam());
    for (int I = 0; I < static_cast<int>(Events.size()); ++I) {
        const char* Reason = WhyNeverRaised(GetParam(), Events[I]->Name);
        if (std::ranges::find(FRaised, I, &TRaised::Event) == FRaised.end())
            EXPECT_TRUE(Reason) << Events[I]->Name << " is raised by nothing, and not listed in Exclusions.cpp";
        else
            EXPECT_FALSE(Reason) << Events[I]->Name << " is raised, but listed in Exclusions.cpp: " << Reason;
    }
    for (const TRaised& Row : FRaised)
        for (size_t Action = 0; Action < FActions.size(); ++Action)
            RunCase(Row, Action);
    std::printf("%d cases so far, %d of them without anything to act on; %d not run\n", Cases, Skipped, NotRun);
}

INSTANTIATE_TEST_SUITE_P(Classes, HandlerMatrix, testing::ValuesIn(ClassesWithEvents()),
                         [](const auto& Info) { return std::string(Info.param->ClassName()); });

} // namespace
