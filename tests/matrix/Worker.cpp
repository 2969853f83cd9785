// matrix_worker: runs the cases of the matrix that it is told on the standard input, one a line:
//
//     find CLASS                                  which events which stimulus raises
//     run CLASS SETTING EVENT STIMULUS ACTION     one case; the last four are numbers
//
// Answers are lines of a word and the rest, the last one of an answer being "end":
//     abstract, raised SETTING EVENT STIMULUS, action NAME, unknown EVENT (its signature has no row), case TEXT,
//     failed TEXT, skipped (the action has nothing to act on)
// A program that goes before it says "end" has failed in the case that it named.
#include "robot/SystemInput.h"
#include "tests/matrix/Actions.h"
#include "tests/matrix/CrashReport.h"
#include "tests/matrix/EventProbe.h"
#include "tests/matrix/Stimuli.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Format.h"
#include "vcl/system/Guard.h"

#include <iostream>
#include <sstream>

namespace {

void Say(const std::string& Line)
{
    std::cout << Line << std::endl;
}

// Events and settings go by their places among PublishedEvents and Settings.
class TWorker {
public:
    TWorker()
    {
        Application->OnException = [this](TObject*, Exception* E) { FReported.push_back(E->what()); };
    }

    void Find(TClass Class)
    {
        EndScene();
        if (!FWrong.empty())
            Say("failed " + std::exchange(FWrong, ""));
        if (!IsCreatable(Class)) {
            Say("abstract");
            return;
        }
        for (const TAction& Action : Actions())
            Say(Format("action %s", Action.Name));
        for (size_t I = 0; I < Settings().size(); ++I)
            if (Settings()[I].Fits(Class))
                FindStimuli(Class, I);
    }

    void Run(TClass Class, size_t Setting, size_t Event, size_t Stimulus, size_t Action)
    {
        const TPropertyInfo& Info = *PublishedEvents(Class)[Event];
        const TCase Case{Class, Settings()[Setting], Info, Stimuli()[Stimulus], Actions()[Action]};
        Say(Format("case %s, %s: on %s, raised by %s, the handler %s", Class->ClassName(), Case.Setting.Name, Info.Name,
                   Case.Stimulus.Name, Case.Action.Name));
        RunCase(Case);
    }

private:
    struct TCase {
        TClass Class;
        const TSetting& Setting;
        const TPropertyInfo& Event;
        const TStimulus& Stimulus;
        const TAction& Action;
    };

    static bool IsCreatable(TClass Class)
    {
        TForm Owner(nullptr, 0);
        try {
            delete Class->Create(&Owner);
            return true;
        } catch (const EInvalidOperation&) {
            return false;
        }
    }

    // The first stimulus that raises each of the events. Some events come only where another has no handler.
    void FindStimuli(TClass Class, size_t Setting)
    {
        const std::vector<const TPropertyInfo*> Events = PublishedEvents(Class);
        std::vector<size_t> Raised(Events.size(), SIZE_MAX);
        TryStimuli(Class, Setting, Raised);
        if (std::ranges::find(Raised, SIZE_MAX) != Raised.end())
            TryStimuli(Class, Setting, Raised);
        for (size_t Event = 0; Event < Events.size(); ++Event)
            if (Raised[Event] != SIZE_MAX)
                Say(Format("raised %d %d %d", static_cast<int>(Setting), static_cast<int>(Event),
                           static_cast<int>(Raised[Event])));
    }

    // Handlers are attached to the events that nothing has raised yet.
    void TryStimuli(TClass Class, size_t Setting, std::vector<size_t>& Raised)
    {
        const std::vector<const TPropertyInfo*> Events = PublishedEvents(Class);
        const std::vector<size_t> Before = Raised;
        size_t Now = SIZE_MAX;
        std::vector<std::unique_ptr<TEventProbe>> Probes;
        for (size_t& First : Raised)
            Probes.push_back(std::make_unique<TEventProbe>([&] { First = std::min(First, Now); }));
        for (size_t I = 0; I < Stimuli().size(); ++I) {
            IsAlive();
            TScene& Scene = SceneFor(Class, Settings()[Setting]);
            for (size_t Event = 0; Event < Events.size(); ++Event)
                if (Before[Event] == SIZE_MAX && !Probes[Event]->AttachTo(Scene.Target, *Events[Event]))
                    Say(Format("unknown %s", Events[Event]->Name));
            Now = I;
            Guarded(nullptr, [&] { Stimuli()[I].Do(Scene); });
            Now = SIZE_MAX;
            for (const TPropertyInfo* Event : Events)
                if (Scene.Target)
                    Event->SetEvent(Scene.Target, nullptr, 0);
        }
        EndScene();
    }

    // A scene is used again as long as it is whole.
    TScene& SceneFor(TClass Class, const TSetting& Setting)
    {
        if (FScene && (FClass != Class || FSetting != &Setting || !FScene->Renew()))
            EndScene();
        if (!FScene) {
            FClass = Class;
            FSetting = &Setting;
            FObjects = LiveObjectCount();
            FHandles = LiveHandleCount();
            FScene = std::make_unique<TScene>(Class, Setting);
        }
        return *FScene;
    }

    void EndScene()
    {
        if (!FScene)
            return;
        FScene.reset();
        PumpMessages();
        Expect(Screen->FormCount == 1, "a form is left behind");
        Expect(LiveObjectCount() == FObjects, "objects are left behind");
        Expect(LiveHandleCount() == FHandles, "handles are left behind");
    }

    // The input of another program may come between; so an event that is not raised is tried again.
    void RunCase(const TCase& Case)
    {
        bool Done = false;
        FRaised = false;
        FWrong.clear();
        for (int I = 0; I < 3 && !FRaised && FWrong.empty(); ++I) {
            if (I > 0)
                EndScene();
            Done = TryCase(Case);
        }
        Expect(FRaised, "the event is not raised");
        if (!FWrong.empty())
            Say("failed " + std::exchange(FWrong, ""));
        else if (!Done)
            Say("skipped");
    }

    // True when the action did something.
    bool TryCase(const TCase& Case)
    {
        IsAlive();
        FReported.clear();
        TScene& Scene = SceneFor(Case.Class, Case.Setting);
        bool Done = false;
        FHandler = [&] {
            if (std::exchange(FRaised, true))
                return;
            Done = Case.Action.Throws;
            Done = Case.Action.Do(Scene);
        };
        FProbe.AttachTo(Scene.Target, Case.Event);
        Guarded(nullptr, [&] { Case.Stimulus.Do(Scene); });
        Expect(!GetCapture(), "the mouse is captured");
        Expect(FWitness.TakesClick(), "another form takes no click");
        if (Scene.Target)
            Case.Event.SetEvent(Scene.Target, nullptr, 0);
        if (!Scene.Renew())
            EndScene();
        ExpectReports(Case.Action.Throws && FRaised ? 1 : 0);
        return Done;
    }

    void ExpectReports(int Times)
    {
        for (const std::string& Text : FReported)
            Expect(Text == Thrown, "reported: " + Text);
        Expect(std::ranges::count(FReported, Thrown) == Times, "the exception is not reported once");
    }

    void Expect(bool Holds, const std::string& Else)
    {
        if (!Holds)
            FWrong += (FWrong.empty() ? "" : "; ") + Else;
    }

    TWitness FWitness;
    std::function<void()> FHandler;
    TEventProbe FProbe{[this] { FHandler(); }}; // there before objects are counted
    std::unique_ptr<TScene> FScene;
    TClass FClass = nullptr; // of the scene
    const TSetting* FSetting = nullptr;
    int64_t FObjects = 0; // before the scene was made
    int64_t FHandles = 0;
    std::vector<std::string> FReported; // the texts of exceptions
    std::string FWrong;
    bool FRaised = false;
};

} // namespace

int main()
{
    ReportCrashes();
    Application->GetHandle();
    Screen->GetCursors(crDefault);
    Screen->HintFont->GetHandle();
    UseMessageLoop([] { Application->ProcessMessages(); });
    TWorker Worker;
    for (std::string Line; std::getline(std::cin, Line);) {
        std::istringstream Words(Line);
        std::string Command, Class;
        Words >> Command >> Class;
        if (Command == "find") {
            Worker.Find(FindClass(Class));
        } else {
            size_t Setting, Event, Stimulus, Action;
            Words >> Setting >> Event >> Stimulus >> Action;
            Worker.Run(FindClass(Class), Setting, Event, Stimulus, Action);
        }
        IsAlive();
        Say("end");
    }
    return 0;
}
