#pragma once
#include <string>

namespace petal {

// A secondary form's model. A view (or a test script) shows it through Host::showModal and
// forwards input to its handlers; Unload ends the modal showing.
class Form {
public:
    virtual ~Form() = default;
    virtual const char* formName() const = 0;

    // Run by the host once the form is on screen (or, in tests, before the script acts).
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    // Returns true to refuse the unload.
    virtual bool Form_QueryUnload(bool /*byUser*/) { return false; }
    virtual void Form_Unload() {}

    void Unload(bool byUser = false);
    bool loaded() const { return loaded_; }
    void markLoaded() { loaded_ = true; }

    std::string Caption;

private:
    bool loaded_ = false;
};

}  // namespace petal
