#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace vantor {

/// Something to look at, in one state.
struct Subject {
    QString name;
    int width = 0;  ///< 0 = its own
    std::function<std::unique_ptr<QWidget>()> make;
};

/// Every component and every card in every state.
std::vector<Subject> subjects();

}  // namespace vantor
