#pragma once

namespace petal {

class PictureStore;
class QtHost;

// Registers the dialog of every form model with the host.
void registerFormDialogs(QtHost& host, PictureStore& pictures);

}  // namespace petal
