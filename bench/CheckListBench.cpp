// checklist_fill, _read, _toggle, _recreate: 10,000 items of a check list box, against the same messages sent to a list
// box of the system by hand.
#include "bench/Bench.h"
#include "controls/CheckListBox.h"
#include "vcl/forms/Form.h"

namespace {

constexpr int ItemCount = 10000;

std::vector<AnsiString> MakeTexts()
{
    std::vector<AnsiString> Texts;
    Texts.reserve(ItemCount);
    for (int I = 0; I < ItemCount; ++I)
        Texts.push_back("The item number " + std::to_string(I));
    return Texts;
}

// The window that stands for what the platform offers: a list box as the check list's is made, and its texts.
class TBareList {
public:
    explicit TBareList(HWND Parent) : FParent(Parent)
    {
        for (const AnsiString& Text : MakeTexts())
            FTexts.push_back(ToWide(Text));
        Create();
    }
    ~TBareList() { DestroyWindow(FList); }

    LRESULT Send(UINT Msg, WPARAM WParam = 0, LPARAM LParam = 0) const
    {
        return SendMessageW(FList, Msg, WParam, LParam);
    }

    void Fill() const
    {
        Send(WM_SETREDRAW, FALSE);
        for (const TWideString& Text : FTexts)
            Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Text.c_str()));
        Send(WM_SETREDRAW, TRUE);
    }
    void Read(wchar_t* Buffer) const
    {
        for (int I = 0; I < ItemCount; ++I) {
            Send(LB_GETTEXT, I, reinterpret_cast<LPARAM>(Buffer));
            Send(LB_GETITEMDATA, I);
        }
    }
    void Recreate()
    {
        struct TItem {
            TWideString Text;
            LPARAM Data;
        };
        std::vector<TItem> Items(ItemCount);
        for (int I = 0; I < ItemCount; ++I) {
            Items[I].Text.resize(Send(LB_GETTEXTLEN, I));
            Send(LB_GETTEXT, I, reinterpret_cast<LPARAM>(Items[I].Text.data()));
            Items[I].Data = Send(LB_GETITEMDATA, I);
        }
        DestroyWindow(FList);
        Create();
        Send(WM_SETREDRAW, FALSE);
        for (int I = 0; I < ItemCount; ++I) {
            Send(LB_INSERTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Items[I].Text.c_str()));
            Send(LB_SETITEMDATA, I, Items[I].Data);
        }
        Send(WM_SETREDRAW, TRUE);
    }

private:
    void Create()
    {
        constexpr DWORD Style = WS_CHILD | WS_HSCROLL | WS_VSCROLL | LBS_HASSTRINGS | LBS_NOTIFY | LBS_OWNERDRAWFIXED |
                                LBS_NOINTEGRALHEIGHT;
        FList = CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", L"", Style, 0, 0, 200, 200, FParent, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    }

    HWND FParent;
    HWND FList = nullptr;
    std::vector<TWideString> FTexts;
};

double Time(const std::function<void()>& Body)
{
    TStopwatch Watch;
    Body();
    return Watch.Microseconds();
}

void Print(const char* Name, const TMeasure& Measure)
{
    PrintFigure(Name, Measure.Value / 1000, "ms", Measure.Baseline / 1000);
}

} // namespace

FIGURE(checklist)
{
    TForm Form(nullptr);
    Form.HandleNeeded();
    auto* List = new TkelCheckListBox(&Form);
    List->Parent = &Form;
    List->HandleNeeded();
    const std::vector<AnsiString> Texts = MakeTexts();
    TBareList Bare(Form.Handle);

    const auto Fill = [&] {
        List->Items->Clear();
        return Time([&] {
            const TStringsUpdate Update(List->Items);
            for (const AnsiString& Text : Texts)
                List->Items->Add(Text);
        });
    };
    const auto BareFill = [&] {
        Bare.Send(LB_RESETCONTENT);
        return Time([&] { Bare.Fill(); });
    };
    Print("checklist_fill", Compare(Fill, BareFill));

    for (int I = 0; I < ItemCount; I += 3)
        List->Checked[I] = true;
    size_t Length = 0;
    int Checked = 0;
    wchar_t Buffer[4096];
    const auto Read = [&] {
        return Time([&] {
            for (int I = 0; I < ItemCount; ++I) {
                Length += List->Items->Strings[I].size();
                Checked += List->Checked[I];
            }
        });
    };
    Print("checklist_read", Compare(Read, [&] { return Time([&] { Bare.Read(Buffer); }); }));

    const auto Toggle = [&] {
        return Time([&] {
            for (int I = 0; I < ItemCount; ++I)
                List->Checked[I] = !List->Checked[I];
        });
    };
    const auto BareToggle = [&] {
        return Time([&] {
            for (int I = 0; I < ItemCount; ++I)
                Bare.Send(LB_SETITEMDATA, I, !Bare.Send(LB_GETITEMDATA, I));
        });
    };
    Print("checklist_toggle", Compare(Toggle, BareToggle));

    const auto Recreate = [&] {
        return Time([&] {
            List->TabWidth = List->TabWidth + 1;
            List->HandleNeeded();
        });
    };
    Print("checklist_recreate", Compare(Recreate, [&] { return Time([&] { Bare.Recreate(); }); }));
}
