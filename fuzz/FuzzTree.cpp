#include "FuzzTree.h"

#include <QCoreApplication>
#include <QFile>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fuzz {

namespace {

constexpr size_t maxFiles = 256;
constexpr size_t maxLinks = 8;
constexpr int maxDepth = 12;
constexpr size_t maxComponent = 64;
constexpr int maxUpInTarget = 8;
// maxLinks * maxUpInTarget levels of empty folders above the root, and
// some to spare.
constexpr int scaffoldDepth = 80;

bool validPath(std::string_view path)
{
    if (path.empty() || path.front() == '/' || path.size() > 512)
        return false;
    int depth = 0;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find('/', start);
        if (end == std::string_view::npos)
            end = path.size();
        const std::string_view part = path.substr(start, end - start);
        if (part.empty() || part == "." || part == ".." || part.size() > maxComponent
            || part.find('\0') != std::string_view::npos)
            return false;
        if (++depth > maxDepth)
            return false;
        start = end + 1;
    }
    return true;
}

bool validTarget(std::string_view target)
{
    if (target.empty() || target.front() == '/' || target.size() > 512 || target.find('\0') != std::string_view::npos)
        return false;
    int up = 0;
    for (size_t at = 0; (at = target.find("..", at)) != std::string_view::npos; at += 2)
        ++up;
    return up <= maxUpInTarget;
}

// "==> PATH <==", "==> PATH -> TARGET <==", "==> PATH |fifo <==".
bool parseHeader(std::string_view line, File &file, bool &nextMarker)
{
    nextMarker = false;
    if (line.size() < 8 || line.substr(0, 4) != "==> " || line.substr(line.size() - 4) != " <==")
        return false;
    std::string_view body = line.substr(4, line.size() - 8);
    if (body == "@next") {
        nextMarker = true;
        return true;
    }
    file = File{};
    if (const size_t arrow = body.find(" -> "); arrow != std::string_view::npos) {
        file.kind = File::link;
        file.target = std::string(body.substr(arrow + 4));
        body = body.substr(0, arrow);
        if (!validTarget(file.target))
            return false;
    } else if (body.size() > 6 && body.substr(body.size() - 6) == " |fifo") {
        file.kind = File::fifo;
        body = body.substr(0, body.size() - 6);
    }
    if (!validPath(body))
        return false;
    file.path = std::string(body);
    return true;
}

const QByteArray &scratchBase()
{
    static const QByteArray base = [] {
        const char *shm = "/dev/shm";
        struct stat st {};
        std::string dir = (::stat(shm, &st) == 0 && S_ISDIR(st.st_mode)) ? shm : (std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp");
        dir += "/sulkbox-fuzz.XXXXXX";
        if (!::mkdtemp(dir.data())) {
            std::perror("sulkbox fuzz: mkdtemp");
            std::abort();
        }
        for (int i = 0; i < scaffoldDepth; ++i) {
            dir += "/d";
            ::mkdir(dir.c_str(), 0755);
        }
        dir += "/tree";
        return QByteArray::fromStdString(dir);
    }();
    return base;
}

// Makes the folders above `relative`; false when one of them is already
// something else, a link included: nothing is ever written through a link.
bool makeParents(const std::string &root, const std::string &relative)
{
    for (size_t at = relative.find('/'); at != std::string::npos; at = relative.find('/', at + 1)) {
        const std::string dir = root + '/' + relative.substr(0, at);
        struct stat st {};
        if (::lstat(dir.c_str(), &st) == 0) {
            if (!S_ISDIR(st.st_mode))
                return false;
        } else if (::mkdir(dir.c_str(), 0755) != 0) {
            return false;
        }
    }
    return true;
}

void writeFiles(const std::string &root, const std::vector<File> &files)
{
    for (const File &f : files) {
        const std::string path = root + '/' + f.path;
        if (!makeParents(root, f.path))
            continue;
        struct stat st {};
        if (::lstat(path.c_str(), &st) == 0) {
            if (S_ISDIR(st.st_mode))
                continue; // a folder stays a folder
            ::unlink(path.c_str());
        }
        switch (f.kind) {
        case File::link:
            (void)::symlink(f.target.c_str(), path.c_str());
            break;
        case File::fifo:
            ::mkfifo(path.c_str(), 0644);
            break;
        case File::plain: {
            const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0644);
            if (fd < 0)
                break;
            size_t done = 0;
            while (done < f.content.size()) {
                const ssize_t n = ::write(fd, f.content.data() + done, f.content.size() - done);
                if (n <= 0)
                    break;
                done += size_t(n);
            }
            ::close(fd);
            break;
        }
        }
    }
}

int removeOne(const char *path, const struct stat *, int type, struct FTW *ftw)
{
    if (ftw->level == 0)
        return 0; // the root itself stays
    if (type == FTW_DP)
        ::rmdir(path);
    else
        ::unlink(path);
    return 0;
}

} // namespace

Input parse(const uint8_t *data, size_t size)
{
    Input input;
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    std::vector<File> *into = nullptr;
    File *current = nullptr;
    size_t links = 0;
    size_t contentStart = 0;
    size_t at = 0;
    const auto close = [&](size_t end) {
        if (current)
            current->content = text.substr(contentStart, end - contentStart);
        current = nullptr;
    };
    while (at < text.size()) {
        size_t eol = text.find('\n', at);
        const size_t lineEnd = eol == std::string_view::npos ? text.size() : eol;
        const std::string_view line = text.substr(at, lineEnd - at);
        File file;
        bool nextMarker = false;
        if (line.substr(0, 4) == "==> ") {
            close(at);
            if (parseHeader(line, file, nextMarker)) {
                if (nextMarker) {
                    into = &input.next;
                } else {
                    if (!into)
                        into = &input.first;
                    if (into->size() < maxFiles && (file.kind != File::link || ++links <= maxLinks)) {
                        into->push_back(std::move(file));
                        current = &into->back();
                    }
                }
            }
            contentStart = eol == std::string_view::npos ? text.size() : eol + 1;
        }
        at = eol == std::string_view::npos ? text.size() : eol + 1;
    }
    close(text.size());
    return input;
}

Tree::Tree(const uint8_t *data, size_t size)
    : m_input(parse(data, size))
{
    const QByteArray &base = scratchBase();
    ::mkdir(base.constData(), 0755);
    m_root = QFile::decodeName(base);
    writeFiles(base.toStdString(), m_input.first);
}

Tree::~Tree()
{
    ::nftw(scratchBase().constData(), removeOne, 16, FTW_DEPTH | FTW_PHYS);
}

void Tree::next()
{
    writeFiles(scratchBase().toStdString(), m_input.next);
}

QString Tree::write(const std::string &relative, std::string_view content)
{
    File f;
    f.path = relative;
    f.content = content;
    writeFiles(scratchBase().toStdString(), {f});
    return m_root + u'/' + QString::fromStdString(relative);
}

std::string_view Tree::content(std::string_view path) const
{
    for (const File &f : m_input.first)
        if (f.path == path && f.kind == File::plain)
            return f.content;
    return {};
}

void fail(const char *what, const char *file, int line)
{
    std::fprintf(stderr, "sulkbox fuzz: %s:%d: a reader broke its promise: %s\n", file, line, what);
    std::abort();
}

bool finite(double v)
{
    return std::isfinite(v);
}

bool printable(const QString &text)
{
    for (const QChar c : text)
        if (c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() <= 0x9f))
            return false;
    return true;
}

} // namespace fuzz

// A core application for the harnesses, made before the first input. Qt
// keeps its argument references.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}
