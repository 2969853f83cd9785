// What a user does with the component of a scene.
#pragma once

#include "tests/matrix/Scene.h"

struct TStimulus {
    const char* Name;
    // Leaves no button and no key down, and no menu open, whatever a handler has done to the scene.
    void (*Do)(TScene& Scene);
};

const std::vector<TStimulus>& Stimuli();

// A second form, with a button that counts its clicks. It stays while scenes come and go.
class TWitness {
public:
    TWitness();
    // Clicks the button as a user does; false when that does not reach it.
    bool TakesClick();
    static TPoint Place();

private:
    std::unique_ptr<TForm> FForm;
    int FClicks = 0;
};
