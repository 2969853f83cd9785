// TChangeLink: tells the user of an image list of its changes.
#pragma once

#include "vcl/system/Event.h"

class TCustomImageList;

// Belongs to whoever uses the list. Either may be destroyed first.
class TChangeLink : public TObject {
public:
    TChangeLink() = default;
    ~TChangeLink() override;

    // The list that it is registered with; nullptr for none, and once the list is gone.
    TCustomImageList* GetSender() const { return FSender; }
    PROPERTY_READ(TCustomImageList*, Sender);
    void Change();

    TNotifyEvent OnChange; // the sender is the list

private:
    friend class TCustomImageList;

    TCustomImageList* FSender = nullptr;
};
