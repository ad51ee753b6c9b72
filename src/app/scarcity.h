#pragma once

#include <QMessageLogContext>
#include <QString>

namespace vantor {

/// Has a program that cannot go on for want of memory, threads or descriptors say so in one line on
/// standard error and end with status 1, instead of aborting: where an allocation fails, where
/// nobody catches an exception, where the toolkit gives up, and where a library stumbles over
/// what it was refused. A fault on a machine that has enough stays one. To be called before there
/// is a toolkit.
void endInASentenceWhenItCannotGoOn();

/// Takes the toolkit's messages: what it says before it aborts is the line; a thread that it cannot
/// have is one that it would wait for in vain; and in a window that there is no memory for it would
/// draw all the same. All else goes where it usually goes.
void endWhereToolkitGivesUp(QtMsgType type, const QMessageLogContext& context,
                            const QString& message);

}  // namespace vantor
