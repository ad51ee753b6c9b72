#include "platform/native_machine.h"
#include "platform/posix/libc_name_order.h"

namespace vantor {

std::unique_ptr<NameOrder> makeNativeNameOrder() {
    return std::make_unique<LibcNameOrder>();
}

}  // namespace vantor
