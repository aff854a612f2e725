#pragma once
// What a watcher of the game (the headless tool's trace) is told as a deal runs.
namespace petal {

class GameEvents {
public:
    virtual ~GameEvents() = default;
    virtual void dealt() {}
    // A card came to rest: side 0 local, 1 opposite; took is the captured card's position or -1.
    virtual void moved(int /*side*/, bool /*fromDeck*/, int /*pos*/, int /*took*/, int /*slot*/) {}
    virtual void claimed(int /*side*/, int /*pos*/, int /*slot*/) {}
    // After the claim, before the result is shown.
    virtual void dealEnded() {}
};

}  // namespace petal
