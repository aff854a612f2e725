#include "platform/FatalError.h"

#include "platform/Host.h"
#include "platform/UnexpectedPrompt.h"
#include "platform/Words.h"

namespace petal {

namespace {
void endWith(Host& host, const std::string& title, const std::string& text) {
    if (!host.ending()) host.msgBox({text, title, MsgIcon::Exclamation, MsgButtons::OK});
    host.endProgramAfterFailure();
}
}  // namespace

bool handlersRun(const Host& host) { return !host.ending(); }

void endAfterFailure(Host& host, std::exception_ptr failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const FatalError& e) {
        endWith(host, e.title(), e.what());
    } catch (const std::out_of_range& e) {
        endWith(host, "Petalgarden", std::string("Subscript out of range (") + e.what() + ").");
    } catch (const std::bad_alloc&) {
        endWith(host, "Petalgarden", PETAL_TR("core", "Out of memory."));
    } catch (const UnexpectedPrompt&) {
        throw;  // a test's script did not expect this: the test fails
    } catch (const std::exception& e) {
        endWith(host, "Petalgarden", said(host, PETAL_TR("core", "The program cannot go on: %1"), {e.what()}));
    }
}

}  // namespace petal
