#include "app/instance_claim.h"

#include <algorithm>

namespace vantor {

QString checkedToken(const QString& text) {
    constexpr qsizetype longest = 512;
    const bool isPrintable =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
    return text.size() <= longest && isPrintable ? text : QString();
}

}  // namespace vantor
