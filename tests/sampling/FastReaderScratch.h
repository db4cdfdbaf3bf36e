#pragma once
// A writable /proc (or /sys) tree for tests that need a source to change
// between two readings. Files start as copies of fixture files and are then
// rewritten by the test.

#include "common/TestSupport.h"
#include "sampling/SystemRoots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

class ScratchTree {
public:
    QString path() const { return m_dir.path(); }
    QString path(const QString &relative) const { return m_dir.path() + QLatin1Char('/') + relative; }

    bool write(const QString &relative, const QByteArray &content) const
    {
        const QString target = path(relative);
        QDir().mkpath(QFileInfo(target).path());
        QFile f(target);
        return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(content) == content.size();
    }

    bool copyFixture(const QString &fixture, const QString &relative) const
    {
        QFile f(TestSupport::fixture(fixture));
        return f.open(QIODevice::ReadOnly) && write(relative, f.readAll());
    }

    bool remove(const QString &relative) const { return QFile::remove(path(relative)); }

    // This tree as proc, and `sys` (a fixture tree, or another scratch) as sys.
    SystemRoots asProc(const QString &sys) const { return {path(), sys, true}; }

private:
    QTemporaryDir m_dir;
};
