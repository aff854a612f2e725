#include "platform/Form.h"

namespace petal {

void Form::Unload(bool byUser) {
    if (!loaded_) return;
    if (Form_QueryUnload(byUser)) return;
    loaded_ = false;
    Form_Unload();
}

}  // namespace petal
