// The system's dialogs for choosing a text file.
#pragma once

#include "vcl/vcl.h"

// The path that the user chooses; empty when there is none. Owner is disabled meanwhile.
AnsiString AskForFileToOpen(TForm* Owner);
AnsiString AskForFileToSave(TForm* Owner, const AnsiString& Suggestion);
