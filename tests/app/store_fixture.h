#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <optional>
#include <string_view>

#include "app/qt_defaults_store.h"

namespace vantor {

/// A folder for one test's settings.
class StoreTest : public testing::Test {
  protected:
    using Value = DefaultsStore::Value;

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("vantor/settings.ini"));

    void write(const QByteArray& bytes) { writeTo(file, bytes); }
    static void writeTo(const QString& path, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(bytes), bytes.size());
    }
    static QByteArray contentsOf(const QString& path) {
        QFile in(path);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
    QByteArray contents() const { return contentsOf(file); }

    /// What the next run reads. From a copy: within one program the toolkit remembers what it has
    /// written to a file.
    std::optional<Value> stored(std::string_view key) { return QtDefaultsStore(copy()).value(key); }

    QString copy() {
        QString path = folder.filePath(QStringLiteral("run-%1.ini").arg(++copies_));
        QFile::copy(file, path);
        return path;
    }

  private:
    int copies_ = 0;
};

}  // namespace vantor
