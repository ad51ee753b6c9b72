#include "platform/native_machine.h"
#include "platform/posix/icu_name_order.h"

namespace vantor {

std::unique_ptr<NameOrder> makeNativeNameOrder() {
    return std::make_unique<ICUNameOrder>(languageOfNames());
}

}  // namespace vantor
