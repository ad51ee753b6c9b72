#include "probes/process_reader.h"

namespace vantor {

ProcessSample ProcessReader::read() {
    return ProcessSample::empty();
}

void ProcessReader::resetDeltas() {}

}  // namespace vantor
