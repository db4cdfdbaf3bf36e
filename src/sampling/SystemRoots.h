#pragma once
// Where the readers find the kernel's files. Tests point these at fixture
// trees; `--root DIR` points them at a captured snapshot.

#include <QString>

struct SystemRoots {
    QString proc = QStringLiteral("/proc");
    QString sys = QStringLiteral("/sys");
    // False when reading a snapshot: sources that exist only on the live
    // machine (mounted volumes, the process list, libraries loaded at run
    // time) are then left empty.
    bool live = true;

    static SystemRoots underPrefix(const QString &dir)
    {
        return {dir + QStringLiteral("/proc"), dir + QStringLiteral("/sys"), false};
    }
};
