// Where forms first show.
#pragma once

class TCustomForm;

// Moves a top-level form to where its Position and DefaultMonitor say.
void PlaceOnScreen(TCustomForm* Form);
// Moves an MDI child, which has its window, to the middle of the area of children if its Position asks for any middle.
void PlaceMdiChild(TCustomForm* Form);
