#pragma once
// The one door from the game core to the platform. The program implements it with Qt
// (QtHost); tests and tools implement it with virtual time and scripted answers (SimHost).
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/PortMapper.h"

namespace petal {

class Timer;
class Form;
class Socket;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
// RestoreDefaultsClose: a file of the program's that cannot be read, which the player may put
// aside for its defaults, or close the program.
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel, RestoreDefaultsClose };
enum class MsgResult { OK, Cancel, Yes, No, Retry, RestoreDefaults, Close };

struct MsgBox {
    std::string text;
    std::string title;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::OK;
    bool systemModal = false;
    // A question of a network session: it closes, answered Cancel, when the session ends.
    bool ofSession = false;
};

class Host {
public:
    virtual ~Host() = default;

    // A timer's Enabled or Interval changed: (re)arm it from now, or disarm it.
    virtual void timerChanged(Timer& timer) = 0;
    virtual void timerRemoved(Timer& timer) = 0;

    // Let pending events run once, without waiting for more.
    virtual void doEvents() = 0;
    // Nothing waits to run now: letting events run again would run nothing. A host that cannot
    // tell says no.
    virtual bool idle() const { return false; }
    // Run events, sleeping between them, until done() holds or the program ends.
    virtual void waitUntil(const std::function<bool()>& done) = 0;
    // Runs call soon, as a handler of its own, once the running handler has returned to the
    // loop that called it (or a nested loop has let events run). Nothing runs once the program
    // ends.
    virtual void post(std::function<void()> call) = 0;

    virtual MsgResult msgBox(const MsgBox& box) = 0;
    // The network session has ended: the boxes of it that stand close, each answered Cancel.
    virtual void endSessionBoxes() = 0;
    // Shows a form modally; returns once the form has unloaded.
    virtual void showModal(Form& form) = 0;
    // The model changed outside an input handler: draw it now.
    virtual void refresh() = 0;

    virtual void setMousePointer(int pointer) = 0;

    // Plays the sound that a path's file name names, if the platform has that sound and a device
    // to play it on; it never waits and never tells of a failure. Every host says what it does
    // with it, so that a host passing calls on cannot drop it unawares.
    virtual void playSound(const std::string& path) = 0;

    virtual std::string timeText() = 0;  // "HH:MM:SS", 24-hour
    virtual std::string dateText() = 0;  // "mm/dd/yyyy"
    // A text the core marked in context (platform/Words.h) in the player's language.
    virtual std::string translate(const char* /*context*/, const char* text) { return text; }

    virtual std::filesystem::path programFolder() = 0;
    // Where the files delivered with the program lie (its help): beside it, or in the shared
    // data folder of an installed copy.
    virtual std::filesystem::path helpFolder() = 0;
    // What the player is to be told, once, of where the program's files went (they could not
    // stay in its folder); empty when they stand where they stood.
    virtual std::string filesMoved() { return {}; }

    // Shows the main window, non-modally; the splash does so from its load.
    virtual void showMainForm() = 0;
    // Presses keys on the user's behalf, in the notation "{F1}" for a named key.
    virtual void sendKeys(const std::string& keys) = 0;

    // A TCP socket of this program; its events run as handlers on this host.
    virtual std::unique_ptr<Socket> createSocket() = 0;
    // The addresses at which another machine may reach this one: IPv4 and IPv6, without the
    // loopback and the IPv6 link-local addresses, which name nothing beyond a cable.
    virtual std::vector<std::string> localAddresses() = 0;
    // A way to open the game's port on the home router; none where the platform has no router
    // to ask (the simulated host never asks one).
    virtual std::unique_ptr<PortMapper> createPortMapper() { return nullptr; }

    // Ends the program in good order: pending waits return, no further events are delivered.
    virtual void endProgram() = 0;
    // The same end after a failure, so that the process exits with a non-zero status.
    virtual void endProgramAfterFailure() = 0;
    virtual bool ending() const = 0;
    // The process's exit status: 0 after a plain end, non-zero after a failure's.
    virtual int exitStatus() const = 0;
};

}  // namespace petal
