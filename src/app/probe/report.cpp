#include "app/probe/report.h"

#include <iomanip>

namespace vantor {

void Report::heading(std::string_view text) {
    out_ << "\n" << text << "\n";
}

void Report::write(std::string_view name, std::string_view answer) {
    // At once: a call that hangs shows by the line that is missing.
    out_ << "  " << std::left << std::setw(38) << name << " " << answer << std::endl;
}

}  // namespace vantor
