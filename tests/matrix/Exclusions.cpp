#include "tests/matrix/Exclusions.h"

namespace {

struct TNeverRaised {
    const char* Class; // and its descendants
    const char* Event;
    const char* Reason;
};

constexpr TNeverRaised NeverRaised[] = {
    {"TkelCustomPopupMenu", "OnPopup", "these menus do not raise it"},
    {"TCustomForm", "OnCreate", "it is raised inside the constructor, where only a form file has attached a handler"},
    {"TDataModule", "OnCreate", "it is raised inside the constructor, where only a form file has attached a handler"},
    {"TkelOfficePopupMenu", "OnDrawItem", "these menus draw themselves and do not raise it"},
    {"TkelOfficePopupMenu", "OnMeasureItem", "these menus measure themselves and do not raise it"},
    {"TkelComboButton", "OnDragDrop", "its halves cover it"},
    {"TkelComboButton", "OnDragOver", "its halves cover it"},
    {"TkelComboButton", "OnStartDrag", "its halves cover it"},
    {"TkelComboButton", "OnEndDrag", "its halves cover it"},
    {"TCustomListBox", "OnDataObject", "only programs ask a list for its objects"},
};

struct TNotRun {
    const char* Class; // and its descendants
    const char* Event;
    const char* Action;
    const char* Reason;
};

constexpr TNotRun NotRun[] = {
    {"TCustomForm", "OnShow", "hides itself", "Visible cannot be changed there, which is an error that is reported"},
    {"TCustomForm", "OnHide", "hides itself", "Visible cannot be changed there, which is an error that is reported"},
    {"TCustomListBox", "OnMeasureItem", "deletes itself", "it is raised while the list makes its window"},
    {"TCustomListBox", "OnMeasureItem", "deletes its form", "it is raised while the list makes its window"},
    {"TCustomListBox", "OnMeasureItem", "leaves its parent", "it is raised while the list makes its window"},
    {"TCustomComboBox", "OnMeasureItem", "deletes itself", "it is raised while the list makes its window"},
    {"TCustomComboBox", "OnMeasureItem", "deletes its form", "it is raised while the list makes its window"},
    {"TCustomComboBox", "OnMeasureItem", "leaves its parent", "it is raised while the list makes its window"},
    {"TMenu", "OnChange", "deletes itself", "it is raised while an item is being deleted"},
    {"TMenu", "OnChange", "deletes its form", "it is raised while an item is being deleted"},
};

struct TOpen {
    const char* Class;
    const char* Reason;
};

constexpr char HandlerAndList[] = "a handler that hides or moves it while its list is down leaves the mouse captured";
constexpr char NotRaised[] = "nothing raises all of its events yet";
constexpr char Window[] = "a handler of OnDeactivate may delete it while its window is made anew";
constexpr char Floating[] = "dragging it from and to docks does not raise its events every time";

constexpr TOpen Open[] = {
    {"TAlignSpeedButton", NotRaised},
    {"TComboBox", HandlerAndList},
    {"TFPForm97", Window},
    {"TForm", Window},
    {"TRadioGroup", NotRaised},
    {"TScrollBar", "the system's loop of a pressed arrow does not end"},
    {"TSpeedButton", NotRaised},
    {"TSplitter", "a handler of OnCanResize that takes it from its parent makes the drag crash"},
    {"TkelCheckListBox", NotRaised},
    {"TkelColorComboBox", HandlerAndList},
    {"TkelColorComboButton", NotRaised},
    {"TkelColorMenu", NotRaised},
    {"TkelFolderMenu", "an exception of OnChange ends the program"},
    {"TkelFontComboBox", HandlerAndList},
    {"TkelMDIChildMenuBar", Floating},
    {"TkelMenu", NotRaised},
    {"TkelMenuBar", Floating},
    {"TkelMenuButton", "the loop of its menu does not end"},
    {"TkelOfficeCheckBox", NotRaised},
    {"TkelOfficePopupMenu", NotRaised},
    {"TkelOfficeRadioButton", NotRaised},
    {"TkelPanel", NotRaised},
    {"TkelScrollBar", "the system's loop of a pressed arrow does not end"},
    {"TkelTBColorCombo", NotRaised},
    {"TkelToolBar", Floating},
};

bool Is(TClass Class, const char* Name)
{
    return Class->InheritsFrom(FindClass(Name));
}

} // namespace

const char* WhyNeverRaised(TClass Class, std::string_view Event)
{
    for (const TNeverRaised& Row : NeverRaised)
        if (Event == Row.Event && Is(Class, Row.Class))
            return Row.Reason;
    return nullptr;
}

const char* WhyNotRun(TClass Class, std::string_view Event, std::string_view Action)
{
    for (const TNotRun& Row : NotRun)
        if (Event == Row.Event && Action == Row.Action && Is(Class, Row.Class))
            return Row.Reason;
    return nullptr;
}

const char* WhyOpen(TClass Class)
{
    for (const TOpen& Row : Open)
        if (Class == FindClass(Row.Class))
            return Row.Reason;
    return nullptr;
}
