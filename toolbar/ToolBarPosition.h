// Tool bars keep their places from one run of the program to the next: in the settings, one record for each caption.
#pragma once

class TkelToolBar;

// Writes where the bar is: its dock and place in it, or its place on the screen, its size, and whether it shows.
void SaveToolBarPosition(TkelToolBar* ToolBar);
// Puts the bar where its record says; without a record the bar stays as it is. What the record lacks, or holds that
// cannot be, is taken from the bar as it is now. A bar that shows in a dock becomes a new row there; a frame comes
// where a display can show its caption. While the program runs the record is then written anew.
void RestoreToolBarPosition(TkelToolBar* ToolBar);
