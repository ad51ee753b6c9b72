#include "app/probe/report.h"

#include <iomanip>

namespace vantor {

void Report::heading(std::string_view text) {
    out_ << "\n" << text << "\n";
}

void Report::write(std::string_view name, std::string_view answer) {
    // Flushed: the missing line names a call that hangs.
    out_ << "  " << std::left << std::setw(38) << name << " " << answer << std::endl;
}

}  // namespace vantor
