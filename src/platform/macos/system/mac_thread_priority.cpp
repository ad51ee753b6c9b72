#include <pthread.h>
#include <pthread/qos.h>

#include "platform/native_machine.h"

namespace vantor {

void setUtilityPriority(const std::string& label) {
    ::pthread_setname_np(label.c_str());
    ::pthread_set_qos_class_self_np(QOS_CLASS_UTILITY, 0);
}

}  // namespace vantor
