#include <iostream>
#include <variant>

#include "model/filled_records.h"
#include "model/snapshot_document.h"

/// Writes the document of a snapshot that has one of everything.
int main() {
    const auto document = vantor::encodedSnapshot(vantor::filled::snapshot());
    const auto* text = std::get_if<std::string>(&document);
    if (!text) return 1;
    std::cout << *text << std::endl;
}
