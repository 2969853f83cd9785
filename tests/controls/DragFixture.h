// Two controls, one to be dragged to the other by the real pointer, and what they tell.
#pragma once

#include "tests/controls/TestWindow.h"
#include "tests/support/Input.h"
#include "tests/support/Reports.h"
#include "vcl/controls/DragObject.h"
#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/Format.h"

using TLog = std::vector<AnsiString>;

// A control that counts the drags it did not get rid of.
class TPiece : public TGraphicControl {
    VCL_CLASS(TPiece, TGraphicControl)
public:
    explicit TPiece(TComponent* AOwner) : TGraphicControl(AOwner) {}

    int Canceled = 0;
    std::function<void()> OnCanceled;

protected:
    void DragCanceled() override
    {
        ++Canceled;
        if (OnCanceled)
            OnCanceled();
    }
};

class TParcel : public TDragObject {
    VCL_CLASS(TParcel, TDragObject)
public:
    explicit TParcel(TLog& Log) : FLog(&Log) {}
    ~TParcel() override { FLog->push_back("freed"); }

protected:
    TCursor GetDragCursor(bool Accepted, int, int) override { return Accepted ? crHandPoint : crHelp; }
    void Finished(TObject* Target, int X, int Y, bool Accepted) override
    {
        FLog->push_back(Format("finished %s %d,%d", Target ? "on target" : "nowhere", X, Y));
        EXPECT_EQ(Accepted, Target != nullptr);
    }

private:
    TLog* FLog;
};

class DragTest : public ControlsTest {
protected:
    static void SetUpTestSuite()
    {
        // The class of hidden windows is registered once.
        DeallocateHWnd(AllocateHWnd([](TMessage&) {}));
    }
    void SetUp() override
    {
        Source->Caption = "source";
        Source->DragMode = dmAutomatic;
        Source->OnStartDrag = [this](TObject*, TDragObject*&) { Log.push_back("start"); };
        Source->OnEndDrag = [this](TObject*, TObject* Target, int X, int Y) {
            Log.push_back(Format("end %s %d,%d", NameOf(Target), X, Y));
        };
        Window.Caption = "window";
        Watch(Target, true);
        Window.Open();
        MovePointerTo(Source, 10, 10);
    }
    void TearDown() override
    {
        ReleaseButton();
        MovePointerAway();
        if (!WindowIsGone)
            ControlsTest::TearDown();
        EXPECT_EQ(GetCapture(), nullptr);
    }

    static AnsiString NameOf(TObject* Object)
    {
        auto* Control = As<TControl>(Object);
        return Control ? Control->Caption : AnsiString(Object ? "object" : "nothing");
    }
    // Logs what comes to Control, which takes everything or nothing.
    void Watch(TControl* Control, bool Accepts)
    {
        Control->OnDragOver = [=, this](TObject*, TObject* Source, int X, int Y, TDragState State, bool& Accept) {
            constexpr const char* Names[] = {"enter", "leave", "move"};
            EXPECT_TRUE(Accept) << "a control with a handler takes what it does not refuse";
            Accept = Accepts;
            Log.push_back(Format("%s %s %d,%d with %s", Names[State], Control->Caption, X, Y, NameOf(Source)));
        };
        Control->OnDragDrop = [=, this](TObject*, TObject* Source, int X, int Y) {
            Log.push_back(Format("drop on %s %d,%d with %s", Control->Caption, X, Y, NameOf(Source)));
        };
    }
    TPiece* NewPiece(const AnsiString& Name, int Left)
    {
        auto* Piece = Add<TPiece>(&Window, Left, 20, 40, 40);
        Piece->Caption = Name;
        return Piece;
    }
    // Presses on the source and moves the pointer onto the target.
    void DragToTarget()
    {
        PressButton();
        MovePointerTo(Target, 20, 20);
    }
    // The same, and what was logged until there is forgotten.
    void HoldOverTarget()
    {
        DragToTarget();
        EXPECT_EQ(Log.front(), "start");
        EXPECT_EQ(Log.back(), "move target 20,20 with source");
        Log.clear();
    }
    static HCURSOR Cursor(TCursor Index) { return TFormHost::Get().CursorHandle(Index); }

    TPiece* Source = NewPiece("source", 20);
    TPiece* Target = NewPiece("target", 120);
    TLog Log;
    bool WindowIsGone = false;
    TReports Reports;
};
