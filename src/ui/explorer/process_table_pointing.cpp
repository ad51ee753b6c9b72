#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

#include "ui/components/make_child.h"
#include "ui/components/tool_tip_text.h"
#include "ui/explorer/process_table_view.h"
#include "ui/formatters.h"
#include "ui/translate.h"

/// How the table of processes answers the pointer.
namespace vantor {

namespace {

QString processTitleHelp(SortMode mode) {
    if (mode == SortMode::cpu) {
        //: what a process's percentage is of; the title of a column is pointed at
        return translate("ProcessTableView",
                         "100% is one processor: a process that keeps two busy has 200%. "
                         "A click sorts by it.");
    }
    //: the title of a column is pointed at
    return translate("ProcessTableView",
                     "The memory that a process has in use now. A click sorts by it.");
}

QString processBarHelp() {
    return translate("ProcessTableView", "A full bar is the largest of the processes shown.");
}

}  // namespace

std::optional<SortMode> ProcessTableView::titleAt(QPointF place) const {
    if (place.y() < 0 || place.y() >= rowArea(0).top()) return std::nullopt;
    const ProcessColumns columns = this->columns();
    const double x = fromLeading(place.x());
    const auto isIn = [x](const QRectF& first, const QRectF& last) {
        return x >= first.left() && x < last.right();
    };
    if (isIn(columns.cpuText, columns.cpuBar)) return SortMode::cpu;
    if (isIn(columns.memoryText, columns.memoryBar)) return SortMode::memory;
    return std::nullopt;
}

QString ProcessTableView::helpAt(QPointF place) const {
    if (const auto title = titleAt(place)) return processTitleHelp(*title);
    const auto row = rowAt(place);
    if (!row) return {};
    const ProcessColumns columns = this->columns();
    const double x = fromLeading(place.x());
    for (const QRectF& bar : {columns.cpuBar, columns.memoryBar}) {
        if (x >= bar.left() && x < bar.right()) return processBarHelp();
    }
    return rows_[*row].command;
}

void ProcessTableView::mousePressEvent(QMouseEvent* event) {
    ring_.mousePressed();
    if (event->button() == Qt::LeftButton) {
        const auto title = titleAt(event->position());
        if (title && actions_.sort) {
            actions_.sort(*title);
        } else {
            setCurrentRow(rowAt(event->position()));
        }
    }
    PaintedView::mousePressEvent(event);
}

/// The texts are those of the moment it opens: rows move under an open menu.
void ProcessTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto row = isByKey ? currentRow() : rowAt(event->pos());
    if (!row) return;
    setCurrentRow(row);
    const Row& chosen = rows_[*row];
    auto* menu = makeChild<QMenu>(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto copies = [menu](const QString& title, const QString& text) {
        return menu->addAction(title, [text] { QApplication::clipboard()->setText(text); });
    };
    //: a command: the whole row of a process
    copies(translate("ProcessTableView", "Copy"), rowText(*row));
    //: a command
    copies(translate("ProcessTableView", "Copy Name"), chosen.name);
    // Of some processes only the name is known.
    //: a command: where the program of a process lies
    copies(translate("ProcessTableView", "Copy Path"), chosen.command)
        ->setEnabled(chosen.command.contains(u'/'));
    menu->addSeparator();
    //: a command: show the processes of that name only
    menu->addAction(translate("ProcessTableView", "Filter by This Name"),
                    [filter = actions_.filter, name = chosen.name] {
                        if (filter) filter(name);
                    });
    const QRect area = rowArea(*row).toAlignedRect();
    menu->popup(isByKey ? mapToGlobal(area.bottomLeft()) : event->globalPos());
}

bool ProcessTableView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return PaintedView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString text = helpAt(help->pos());
    helpPID_.reset();
    if (text.isEmpty()) {
        QToolTip::hideText();
        return true;
    }
    QRect area(0, 0, width(), static_cast<int>(rowArea(0).top()));
    if (const auto row = rowAt(help->pos())) {
        helpPID_ = rows_[*row].pid;
        area = rowArea(*row).toAlignedRect();
    }
    QToolTip::showText(help->globalPos(), toolTipText(text), this, area);
    return true;
}

}  // namespace vantor
