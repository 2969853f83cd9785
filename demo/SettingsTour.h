// TSettingsTour: the part of the tour that is about the settings: each page of the dialog, by mouse and by keyboard,
// what OK keeps and that Cancel keeps nothing.
#pragma once

#include "demo/Guide.h"

#include <exception>

class TMainForm;
class TPanel;
class TSettingsForm;

class TSettingsTour {
public:
    TSettingsTour(TMainForm* Form, TGuide& Guide) : FForm(Form), FGuide(Guide) {}

    // Raises an Exception that says what the program did not do.
    void Run();

private:
    void WhileOpen(const std::function<void(TScript& Script)>& AddSteps);
    void Then(TScript& Script, const std::function<bool()>& Condition, void (TSettingsTour::*Step)());
    static TSettingsForm* Dialog();
    static bool DialogIsActive();

    // Steps, and parts of them.
    void ChooseByKeys();
    void ShowText();
    void ShowRefusal();
    void ShowPages();
    void ShowBars();
    void ShowYou();
    void ShowAbout();
    void ClickPage(int Index, const TPanel* Page);

    TMainForm* FForm;
    TGuide& FGuide;
    std::exception_ptr FFailure;
};
