#pragma once
// Fuzz inputs for the readers that take a whole /proc and /sys tree. An input
// is a list of files in the form `head` prints several of them in:
//
//   ==> proc/stat <==
//   cpu0 1 2 3 4 …
//   ==> sys/class/net/eth0/device -> ../../../devices/pci0000:00 <==
//   ==> sys/class/hwmon/hwmon0/temp1_input |fifo <==
//   ==> @next <==
//   ==> proc/stat <==
//   cpu0 5 6 7 8 …
//
// A header line names a file relative to the tree's root (`-> TARGET` makes
// a symbolic link, `|fifo` a named pipe); the file holds everything up to the
// next header line. Files after "@next" make a second snapshot: they replace
// files of the first when the harness calls next(), for readers that compare
// two readings. Paths that would leave the tree (absolute, "..") are ignored.
//
// The tree lives under a scratch folder (on /dev/shm where there is one)
// that is emptied after every input. Links may point upwards; the root sits
// below enough empty folders that no link the format allows reaches out.

#include "sampling/SystemRoots.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

struct File {
    std::string path;
    std::string target; // for links
    enum Kind { plain, link, fifo } kind = plain;
    std::string_view content;
};

struct Input {
    std::vector<File> first;
    std::vector<File> next;
};

// Splits an input into its files; anything before the first header is
// ignored, and so is a malformed header line (its content joins nothing).
Input parse(const uint8_t *data, size_t size);

// The files of one input, written out for as long as it lives.
class Tree {
public:
    Tree(const uint8_t *data, size_t size);
    ~Tree();
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    // The root folder: <root>/proc and <root>/sys are the readers' trees.
    const QString &root() const { return m_root; }
    // As a captured snapshot (live-only sources stay empty).
    SystemRoots snapshot() const { return SystemRoots::underPrefix(m_root); }
    // As the live machine, for the readers that read only there.
    SystemRoots live() const { return {m_root + QStringLiteral("/proc"), m_root + QStringLiteral("/sys"), true}; }

    // Writes the second snapshot over the first.
    void next();

    // The content of the first snapshot's file at `path`, empty if none.
    std::string_view content(std::string_view path) const;

    // Writes one more file (relative to the root) and returns its path.
    QString write(const std::string &relative, std::string_view content);

private:
    Input m_input;
    QString m_root;
};

// Aborts with a message when a reader hands out something it promises not
// to (libFuzzer then keeps the input).
#define FUZZ_CHECK(cond)                                                                                  \
    do {                                                                                                  \
        if (!(cond))                                                                                      \
            ::fuzz::fail(#cond, __FILE__, __LINE__);                                                      \
    } while (false)
[[noreturn]] void fail(const char *what, const char *file, int line);

// A reading a person will see: finite.
bool finite(double v);
// Text with no control characters.
bool printable(const QString &text);

} // namespace fuzz
