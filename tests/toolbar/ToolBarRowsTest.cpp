// A user arranges bars in rows, with a real mouse in small steps: what comes of it, as pictures. "AB|C" are two rows, A
// in front of B in the first one; "A&B" cover each other; "-" is an empty row; "(A)" is out of sight, "[A]" floats.
#include "robot/SystemInput.h"
#include "tests/toolbar/DockFixture.h"

namespace {

// Where the pointer takes a bar by its grip, and where it lets go.
enum TStroke {
    stNextRow,  // one row down
    stFirstRow, // to the first row
    stFarEnd,   // along the row to its far end
    stBegin,    // back to its beginning
};

struct TCase {
    TAlign Edge;
    bool Arrange;
    int Grip; // how far across the bar it is taken
};

class ToolBarRowsTest : public DockFixture, public testing::WithParamInterface<TCase> {
protected:
    void SetUp() override
    {
        Form->ClientWidth = 420;
        Form->ClientHeight = 420;
        Dock = NewDock(GetParam().Edge);
        Dock->ArrangeRows = GetParam().Arrange;
        // By the rules alone bars would go to docks nearby.
        for (TAlign Align : {alTop, alBottom, alLeft, alRight})
            if (GetParam().Arrange && Align != GetParam().Edge)
                NewDock(Align);
        Axis = Dock->Axis();
    }
    void TearDown() override { ReleaseButton(); }

    // Bars are 100 pixels long, but L is 350, with gaps that a trembling hand does not close.
    void Build(std::string_view Picture)
    {
        int Row = 0;
        int Start = 0;
        for (char Name : Picture) {
            if (Name == '|') {
                Row += Thickness;
                Start = 0;
                continue;
            }
            Bars.push_back(NewBar(Dock, std::string(1, Name), Start, Row, Name == 'L' ? 350 : 100));
            Start = Axis.End(*Bars.back()) + Gap;
        }
        Axis.Grow(*Dock, Row + Thickness);
        Show();
    }

    TPoint OnScreen(int Along, int Across) const
    {
        return Dock->ClientToScreen(Axis.IsVertical() ? TPoint(Across, Along) : TPoint(Along, Across));
    }

    void Drag(char Name, TStroke Stroke)
    {
        const TTestBar* Bar = Find(Name);
        int Along = Axis.Start(*Bar) + 5;
        int Across = Axis.Row(*Bar) + GetParam().Grip;
        const int ToAlong = Stroke == stFarEnd ? Axis.Length(*Dock) - 6 : Stroke == stBegin ? 5 : Along;
        const int ToAcross = Stroke == stNextRow    ? Across - GetParam().Grip + Thickness + 20
                             : Stroke == stFirstRow ? 6
                                                    : Across;
        MovePointer(OnScreen(Along, Across));
        PressButton();
        while (Along != ToAlong || Across != ToAcross) {
            Along += std::clamp(ToAlong - Along, -14, 14);
            Across += std::clamp(ToAcross - Across, -3, 3);
            MovePointer(OnScreen(Along, Across));
        }
        ReleaseButton();
    }

    TTestBar* Find(char Name) const
    {
        for (TTestBar* Bar : Bars)
            if (Bar->Name[0] == Name)
                return Bar;
        return nullptr;
    }

    std::string Picture() const
    {
        std::string Text;
        int Last = Axis.Thickness(*Dock) / Thickness - 1;
        for (const TTestBar* Bar : Bars)
            if (Bar->Dock == Dock)
                Last = std::max(Last, Axis.Row(*Bar) / Thickness);
        for (int Row = 0; Row <= Last; ++Row)
            Text += (Row > 0 ? "|" : "") + RowPicture(Row * Thickness);
        for (const TTestBar* Bar : Bars)
            if (Bar->Dock != Dock)
                Text += (Bar->Floating ? "[" : "<") + Bar->Name + (Bar->Floating ? "]" : ">");
        return Text;
    }

    std::string RowPicture(int Row) const
    {
        std::vector<TTestBar*> InRow;
        for (TTestBar* Bar : Bars)
            if (Bar->Dock == Dock && Axis.Row(*Bar) / Thickness * Thickness == Row)
                InRow.push_back(Bar);
        std::sort(InRow.begin(), InRow.end(), [&](const TTestBar* A, const TTestBar* B) {
            return Axis.Start(*A) != Axis.Start(*B) ? Axis.Start(*A) < Axis.Start(*B) : A->Name[0] < B->Name[0];
        });
        std::string Text;
        for (size_t I = 0; I < InRow.size(); ++I) {
            const bool Covers = I > 0 && Axis.Start(*InRow[I]) < Axis.End(*InRow[I - 1]);
            const bool IsOut = Row >= Axis.Thickness(*Dock) || Axis.Start(*InRow[I]) >= Axis.Length(*Dock);
            Text += (Covers ? "&" : "") + (IsOut ? "(" + InRow[I]->Name + ")" : InRow[I]->Name);
        }
        return Text.empty() ? "-" : Text;
    }

    static constexpr int Thickness = 26;
    static constexpr int Gap = 8;

    TkelDock* Dock = nullptr;
    TDockAxis Axis{alTop};
    std::vector<TTestBar*> Bars;
};

// One drag after the other, each with what it leads to.
struct TSession {
    const char* Begin;
    std::vector<std::pair<char, TStroke>> Strokes;
    std::vector<std::string> Arranged;
    // Worked out from the rules. In the upper half of a row bars slide over each other; in the lower half the dragged
    // bar stops at its neighbours or passes them, and does not come out of a row that it shares.
    std::vector<std::string> InUpperHalf;
    std::vector<std::string> InLowerHalf;
};

const TSession Sessions[] = {
    {"ABC|D", {{'A', stNextRow}, {'A', stFirstRow}}, {"BC|AD", "ABC|D"}, {"ABC|D", "ABC|D"}, {"ABC|D", "ABC|D"}},
    {"ABC|D", {{'B', stNextRow}, {'B', stFirstRow}}, {"AC|DB", "ABC|D"}, {"ABC|D", "ABC|D"}, {"ABC|D", "ABC|D"}},
    {"ABC|L", {{'A', stNextRow}, {'A', stFirstRow}}, {"L|ABC", "ABC|L"}, {"ABC|L", "ABC|L"}, {"ABC|L", "ABC|L"}},
    {"ABC|L", {{'B', stNextRow}, {'B', stFirstRow}}, {"L|ABC", "ABC|L"}, {"ABC|L", "ABC|L"}, {"ABC|L", "ABC|L"}},
    {"ABC|D", {{'A', stFarEnd}, {'A', stBegin}}, {"BCA|D", "ABC|D"}, {"BCA|D", "ABC|D"}, {"CA&B|D", "ACB|D"}},
    {"ABC|D", {{'B', stFarEnd}, {'B', stBegin}}, {"ACB|D", "BAC|D"}, {"ACB|D", "A&BC|D"}, {"ACB|D", "BAC|D"}},
    {"A|B|C", {{'A', stNextRow}, {'A', stFirstRow}}, {"BA|C", "BA|C"}, {"-|A&CB", "-|A&CB"}, {"-|A&CB", "-|A&CB"}},
};

std::string CaseName(const testing::TestParamInfo<TCase>& Info)
{
    return std::string(Info.param.Edge == alTop ? "Top" : "Left") + (Info.param.Arrange ? "Arranged" : "ByTheRules") +
           std::to_string(Info.param.Grip);
}

std::vector<TCase> Cases()
{
    std::vector<TCase> All;
    for (TAlign Edge : {alTop, alLeft})
        for (bool Arrange : {true, false})
            for (int Grip : {4, 13, 22})
                All.push_back({Edge, Arrange, Grip});
    return All;
}

INSTANTIATE_TEST_SUITE_P(Bars, ToolBarRowsTest, testing::ValuesIn(Cases()), CaseName);

} // namespace

TEST_P(ToolBarRowsTest, EachDragLeadsToWhatThePictureShows)
{
    for (const TSession& Session : Sessions) {
        SCOPED_TRACE(Session.Begin);
        Bars.clear();
        Form = std::make_unique<TForm>(nullptr);
        Form->SetBounds(100, 100, 400, 300);
        SetUp();
        Build(Session.Begin);
        const bool InUpperHalf = GetParam().Grip <= Thickness / 2;
        const auto& Expected = GetParam().Arrange ? Session.Arranged
                               : InUpperHalf      ? Session.InUpperHalf
                                                  : Session.InLowerHalf;
        for (size_t I = 0; I < Session.Strokes.size(); ++I) {
            const auto [Bar, Stroke] = Session.Strokes[I];
            SCOPED_TRACE(std::string(1, Bar) + ", stroke " + std::to_string(I));
            Drag(Bar, Stroke);
            EXPECT_EQ(Picture(), Expected[I]);
        }
    }
}
