// What many sources with the toolkit include. Each still includes what it uses.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include "precompiled_core.h"
