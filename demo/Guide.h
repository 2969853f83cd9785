// TGuide: leads a real pointer over a form as a user would, and takes pictures of what there is to see.
//
// Everything that does not come about in time raises an Exception "The tour waits in vain: %s".
#pragma once

#include "robot/Script.h"
#include "vcl/forms/Form.h"

#include <functional>
#include <string_view>

class TGuide {
public:
    // The pictures become files NN-name.bmp in Folder, which exists already. Taken is how many there are already.
    TGuide(TForm* Form, const AnsiString& Folder, int Taken);

    int GetTaken() const { return FTaken; }
    PROPERTY_READ(int, Taken);

    // Shows the form and takes the pointer off it.
    void Begin();
    // Pictures show this form from here on.
    void Follow(TForm* Form) { FForm = Form; }
    // Handles messages until Condition holds. What names it.
    static void WaitFor(std::string_view What, const std::function<bool()>& Condition);
    // Raises an Exception "The tour is wrong about this: %s" unless Condition holds.
    static void Expect(bool Condition, std::string_view What);

    // ---- what a user does

    void PointAt(TControl* Control);
    // To the corner of the screen.
    void PointAway();
    void Press();
    void Release();
    void Click(TControl* Control);
    // With the button down: in steps to a place on the screen, until Condition holds there.
    void DragTo(const TPoint& Target, std::string_view What, const std::function<bool()>& Condition);
    // On whatever is there, until Condition holds.
    void ClickAt(const TPoint& Place, std::string_view What, const std::function<bool()>& Condition);
    // Opens the control's popup menu with the right button, takes a picture and chooses the item at Index.
    void ChooseFromMenuOf(TControl* Control, const TPoint& Place, int Index, std::string_view Picture);
    // Sends input that opens a menu, follows the script and waits until all menus are closed.
    void GoThroughMenus(std::string_view What, const TScript& Script, const std::function<void()>& Open);
    // To an item of the menu that is open. Does not wait.
    static void PointAtItem(int Index);

    // ---- and sees

    void TakePicture(std::string_view Name);
    // While a menu is open. What it shows must have been drawn.
    void TakePictureOfMenu(std::string_view Name);
    // The next hint shows at once, or no hints any more.
    static void SetHints(bool Showing);
    static void WaitForHint();

private:
    void SavePicture(std::string_view Name);

    TForm* FForm;
    AnsiString FFolder;
    int FTaken;
};
