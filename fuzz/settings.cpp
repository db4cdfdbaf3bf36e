// The settings file: the input is the ini file at the settings path, read
// again as a change from disk would be, and every setting read back typed.

#include "FuzzTree.h"

#include "settings/Settings.h"

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>

// A value written as @Variant(...) is a serialised Qt value, which Qt reads
// back with the lengths it declares: a damaged one can ask for gigabytes.
// The program itself copes either way: where the allocation fails Qt gives
// up on the value and the setting falls back to its default; where it
// succeeds the block is never touched and is freed again. Under the
// sanitizer the second way is not cheap, since freeing a block writes its
// shadow (an eighth of its size), so a 16 GB request costs 2 GB of memory.
// Requests over 512 MB therefore fail here, which takes Qt's refusal path.
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1:max_allocation_size_mb=512";
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // A private configuration folder, chosen before the store is first used.
    static QTemporaryDir home;
    static const QString file = [] {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
        QDir().mkpath(home.path() + QStringLiteral("/sulkbox"));
        return Settings::filePath();
    }();
    static long generation = 0;

    QFile f(file);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    f.write(reinterpret_cast<const char *>(data), qint64(size));
    f.close();
    // A new modification time every round, so the store reads the file anew
    // even when two inputs share a size and a second.
    const timespec times[2] = {{1'000'000'000 + ++generation, 0}, {1'000'000'000 + generation, 0}};
    ::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), times, 0);

    Settings::reloadFromDisk();
    FUZZ_CHECK(Settings::usingUserFile());
    for (const Settings::Entry &e : Settings::all()) {
        const QVariant v = Settings::value(e.key);
        switch (e.type) {
        case Settings::Type::Flag:
            FUZZ_CHECK(v.typeId() == QMetaType::Bool);
            break;
        case Settings::Type::Double:
            FUZZ_CHECK(v.typeId() == QMetaType::Double);
            break;
        case Settings::Type::Text:
            FUZZ_CHECK(v.typeId() == QMetaType::QString);
            break;
        }
        (void)Settings::raw(e.key);
    }
    return 0;
}
