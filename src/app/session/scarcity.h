#pragma once

#include <QMessageLogContext>
#include <QString>

namespace vantor {

/// Makes a program that cannot go on for lack of memory, threads or descriptors write one line to
/// standard error and end with status 1, instead of aborting: where an allocation fails, an
/// exception is not caught, the toolkit gives up, or a library faults over what it was refused. A
/// fault on a machine that has enough stays one. To be called before the toolkit is used.
void endInASentenceWhenItCannotGoOn();

/// Handles the toolkit's messages: the last one before it aborts is the line; for a thread that it
/// cannot create it would wait for ever; and it would draw into a window without memory. All others
/// go to their usual handler.
void endWhereToolkitGivesUp(QtMsgType type, const QMessageLogContext& context,
                            const QString& message);

}  // namespace vantor
