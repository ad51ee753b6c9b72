#pragma once

#include <QRectF>

namespace vantor {

/// The columns of the process table. The figures stand at the trailing edge of their
/// column's text part, so that their digits stand below each other.
struct ProcessColumns {
    /// Of the texts within a row, on both sides: the chosen row's background begins before them.
    static constexpr double sideInset = 8;
    static constexpr double cpuBarWidth = 48;
    static constexpr double memoryBarWidth = 72;

    QRectF icon;
    QRectF name;
    QRectF pid;
    QRectF cpuText;
    QRectF cpuBar;  ///< without width where there is no room for bars
    QRectF memoryText;
    QRectF memoryBar;

    /// For a row of that size; `scale` is what lengths that hold text are multiplied with.
    static ProcessColumns make(double width, double height, double scale);
};

}  // namespace vantor
