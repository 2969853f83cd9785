// bar_save: one record written. restore_layout: the records of 20 bars read. Both against the same values with plain
// registry calls, the key opened for each. restore_apply: what comes on top of reading when a form with the bars
// is loaded, not shown.
#include "bench/BarForm.h"
#include "bench/Bench.h"
#include "common/Settings.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/Utf.h"

namespace {

constexpr int BarCount = 20;
constexpr int Records = 20; // written in a row, for one time

constexpr const wchar_t* ValueNames[] = {L"isFloat", L"isVisible", L"XPosition", L"YPosition",
                                         L"Width",   L"Height",    L"DockName"};

double SaveRecords(TkelToolBar* Bar)
{
    TStopwatch Watch;
    for (int I = 0; I < Records; ++I)
        SaveToolBarPosition(Bar);
    return Watch.Microseconds() / Records;
}

double WritePlainly(const std::wstring& Path)
{
    constexpr wchar_t Text[] = L"100";
    TStopwatch Watch;
    for (int I = 0; I < Records; ++I)
        for (const wchar_t* Name : ValueNames) {
            HKEY Key = nullptr;
            RegOpenKeyExW(HKEY_CURRENT_USER, Path.c_str(), 0, KEY_SET_VALUE, &Key);
            RegSetValueExW(Key, Name, 0, REG_SZ, reinterpret_cast<const BYTE*>(Text), sizeof Text);
            RegCloseKey(Key);
        }
    return Watch.Microseconds() / Records;
}

// What restoring reads, in its order.
double ReadRecords(const std::vector<TkelToolBar*>& Bars)
{
    int Sum = 0;
    TStopwatch Watch;
    for (const TkelToolBar* Bar : Bars) {
        const AnsiString Section = "ToolBar\\" + Bar->Caption;
        for (const char* Name : {"XPosition", "YPosition", "Width", "Height"})
            Sum += ReadInteger(Section, Name, 0);
        Sum += ReadBool(Section, "isFloat", false);
        Sum += static_cast<int>(ReadString(Section, "DockName", "").size());
        Sum += ReadBool(Section, "isVisible", true);
    }
    const double Time = Watch.Microseconds();
    if (Sum == 0)
        throw Exception("restore_layout: there are no records");
    return Time;
}

double ReadPlainly(const std::vector<std::wstring>& Paths)
{
    wchar_t Text[64];
    TStopwatch Watch;
    for (const std::wstring& Path : Paths)
        for (const wchar_t* Name : ValueNames) {
            HKEY Key = nullptr;
            DWORD Size = sizeof Text;
            RegOpenKeyExW(HKEY_CURRENT_USER, Path.c_str(), 0, KEY_QUERY_VALUE, &Key);
            RegQueryValueExW(Key, Name, nullptr, nullptr, reinterpret_cast<BYTE*>(Text), &Size);
            RegCloseKey(Key);
        }
    return Watch.Microseconds();
}

// The form as it is in a program's file.
void WriteForm(TBarForm& Form, bool AutoSave, TMemoryStream& Stream)
{
    for (TkelToolBar* Bar : Form.Bars)
        Bar->AutoSave = AutoSave;
    WriteComponent(Stream, Form.Form.get());
}

double LoadForm(TMemoryStream& Stream)
{
    TForm Form(nullptr);
    Stream.Position = 0;
    TStopwatch Watch;
    ReadRootComponent(Stream, &Form);
    return Watch.Microseconds();
}

} // namespace

FIGURE(bar_records)
{
    TBarForm Form(BarCount, 10);
    std::vector<std::wstring> Paths;
    for (TkelToolBar* Bar : Form.Bars) {
        SaveToolBarPosition(Bar);
        Paths.push_back(ToWide(RecordPath(Bar)));
    }
    const TMeasure Save =
        Compare([&] { return SaveRecords(Form.Bars[0]); }, [&] { return WritePlainly(Paths[1]); }, 15);
    PrintFigure("bar_save", Save.Value, "us", Save.Baseline);
    const TMeasure Read = Compare([&] { return ReadRecords(Form.Bars); }, [&] { return ReadPlainly(Paths); }, 15);
    PrintFigure("restore_layout", Read.Value / 1000, "ms", Read.Baseline / 1000);
    TMemoryStream Restoring, Plain;
    WriteForm(Form, true, Restoring);
    WriteForm(Form, false, Plain);
    const TMeasure Load = Compare([&] { return LoadForm(Restoring); }, [&] { return LoadForm(Plain); }, 15);
    PrintFigure("restore_apply", (Load.Value - Load.Baseline - Read.Value) / 1000, "ms");
    DeleteBarSettings();
}
