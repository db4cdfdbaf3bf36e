#include "app/desktop/Appcast.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QXmlStreamReader>

namespace {

// Notes longer than this are cut: the window shows a summary, the release
// notes page has the rest.
constexpr qsizetype kMaxNotes = 20000;

// The name without its namespace prefix: "sparkle:version" → "version".
QStringView localName(QStringView qualified)
{
    const qsizetype colon = qualified.lastIndexOf(u':');
    return colon < 0 ? qualified : qualified.mid(colon + 1);
}

QUrl webUrl(const QString &text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    return url.isValid() ? url : QUrl();
}

// HTML notes as plain lines; list items keep a bullet or their number.
QString htmlToText(const QString &html)
{
    QTextDocument doc;
    doc.setHtml(html);
    QStringList lines;
    bool previousWasItem = false;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        QString line = block.text().replace(QChar::LineSeparator, u'\n').trimmed();
        QTextList *list = block.textList();
        if (line.isEmpty() && !list)
            continue;
        // Paragraphs are set apart by a blank line; items of a list are not.
        if (!lines.isEmpty() && !(list && previousWasItem))
            lines << QString();
        if (list) {
            const bool numbered = list->format().style() == QTextListFormat::ListDecimal;
            line = (numbered ? QString::number(list->itemNumber(block) + 1) + QStringLiteral(". ")
                             : QStringLiteral("• "))
                + line;
        }
        previousWasItem = list != nullptr;
        lines << line;
    }
    return lines.join(u'\n');
}

QString plainNotes(const QString &text)
{
    QString notes = text.trimmed();
    if (notes.contains(u'<'))
        notes = htmlToText(notes);
    if (notes.size() > kMaxNotes)
        notes = notes.left(kMaxNotes) + u'…';
    return notes;
}

void readEnclosure(const QXmlStreamAttributes &attributes, AppcastItem &item)
{
    for (const QXmlStreamAttribute &a : attributes) {
        const QStringView name = localName(a.qualifiedName());
        if (name == u"url")
            item.enclosureUrl = webUrl(a.value().toString());
        else if (name == u"version" && item.version.isEmpty())
            item.version = a.value().toString().trimmed();
        else if (name == u"shortVersionString" && item.shortVersion.isEmpty())
            item.shortVersion = a.value().toString().trimmed();
    }
}

// Reads one <item>; the reader stands on its start tag.
AppcastItem readItem(QXmlStreamReader &xml)
{
    AppcastItem item;
    while (xml.readNextStartElement()) {
        const QStringView name = localName(xml.qualifiedName());
        if (name == u"enclosure") {
            readEnclosure(xml.attributes(), item);
            xml.skipCurrentElement();
        } else if (name == u"title") {
            item.title = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        } else if (name == u"link") {
            item.link = webUrl(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        } else if (name == u"description") {
            // Unescaped HTML inside a description arrives as child elements.
            item.notes = plainNotes(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        } else if (name == u"version") {
            item.version = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        } else if (name == u"shortVersionString") {
            item.shortVersion = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        } else if (name == u"releaseNotesLink") {
            item.releaseNotesLink = webUrl(xml.readElementText(QXmlStreamReader::IncludeChildElements));
        } else {
            xml.skipCurrentElement();
        }
    }
    return item;
}

struct VersionParts {
    QStringList release;
    QStringList pre;
};

VersionParts split(QString v)
{
    v = v.trimmed();
    if (v.startsWith(u'v') || v.startsWith(u'V'))
        v.remove(0, 1);
    // Build metadata ("+git42") does not order versions.
    v = v.section(u'+', 0, 0);
    const qsizetype dash = v.indexOf(u'-');
    VersionParts parts;
    parts.release = (dash < 0 ? v : v.left(dash)).split(u'.');
    if (dash >= 0)
        parts.pre = v.mid(dash + 1).split(u'.');
    return parts;
}

// Numbers of any length, compared as numbers.
int compareNumbers(QStringView a, QStringView b)
{
    while (a.size() > 1 && a.front() == u'0')
        a = a.mid(1);
    while (b.size() > 1 && b.front() == u'0')
        b = b.mid(1);
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    const int c = a.compare(b);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

qsizetype leadingDigits(QStringView s)
{
    qsizetype n = 0;
    while (n < s.size() && s[n].isDigit() && s[n].unicode() < 128)
        ++n;
    return n;
}

int sign(int c)
{
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

// One release part: its number first ("10" > "9"), then what follows the
// number, where nothing ("2") comes after something ("2rc1").
int compareReleasePart(QStringView a, QStringView b)
{
    const qsizetype da = leadingDigits(a), db = leadingDigits(b);
    const QStringView na = da ? a.left(da) : QStringView(u"0");
    const QStringView nb = db ? b.left(db) : QStringView(u"0");
    if (const int c = compareNumbers(na, nb))
        return c;
    const QStringView ra = a.mid(da), rb = b.mid(db);
    if (ra.isEmpty() != rb.isEmpty())
        return ra.isEmpty() ? 1 : -1;
    return sign(ra.compare(rb, Qt::CaseInsensitive));
}

// Pre-release identifiers: numbers before words, numbers as numbers.
int comparePreParts(QStringView a, QStringView b)
{
    const bool na = !a.isEmpty() && leadingDigits(a) == a.size();
    const bool nb = !b.isEmpty() && leadingDigits(b) == b.size();
    if (na && nb)
        return compareNumbers(a, b);
    if (na != nb)
        return na ? -1 : 1;
    return sign(a.compare(b, Qt::CaseInsensitive));
}

} // namespace

QUrl AppcastItem::downloadPage() const
{
    if (Appcast::isWebAddress(link))
        return link;
    if (Appcast::isWebAddress(enclosureUrl))
        return enclosureUrl;
    return {};
}

QUrl AppcastItem::notesPage() const
{
    return Appcast::isWebAddress(releaseNotesLink) ? releaseNotesLink : QUrl();
}

namespace Appcast {

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
        && (url.scheme() == u"https" || url.scheme() == u"http");
}

std::optional<QList<AppcastItem>> parse(const QByteArray &data)
{
    QXmlStreamReader xml(data);
    // Prefixes are matched by their local part, so a feed that forgets to
    // declare its namespace still reads.
    xml.setNamespaceProcessing(false);
    if (!xml.readNextStartElement() || localName(xml.qualifiedName()) != u"rss")
        return std::nullopt;
    QList<AppcastItem> items;
    while (xml.readNextStartElement()) {
        if (localName(xml.qualifiedName()) != u"channel") {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (localName(xml.qualifiedName()) != u"item") {
                xml.skipCurrentElement();
                continue;
            }
            AppcastItem item = readItem(xml);
            if (!item.displayVersion().isEmpty())
                items.append(std::move(item));
        }
    }
    // Read to the end, so that broken markup after the items is noticed.
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        return std::nullopt;
    return items;
}

int compareVersions(const QString &a, const QString &b)
{
    const VersionParts pa = split(a), pb = split(b);
    const qsizetype n = std::max(pa.release.size(), pb.release.size());
    for (qsizetype i = 0; i < n; ++i) {
        const QString x = i < pa.release.size() ? pa.release[i] : QStringLiteral("0");
        const QString y = i < pb.release.size() ? pb.release[i] : QStringLiteral("0");
        if (const int c = compareReleasePart(x, y))
            return c;
    }
    // A release comes after its own pre-releases.
    if (pa.pre.isEmpty() != pb.pre.isEmpty())
        return pa.pre.isEmpty() ? 1 : -1;
    const qsizetype m = std::min(pa.pre.size(), pb.pre.size());
    for (qsizetype i = 0; i < m; ++i)
        if (const int c = comparePreParts(pa.pre[i], pb.pre[i]))
            return c;
    if (pa.pre.size() != pb.pre.size())
        return pa.pre.size() < pb.pre.size() ? -1 : 1;
    return 0;
}

std::optional<AppcastItem> newest(const QList<AppcastItem> &items)
{
    std::optional<AppcastItem> best;
    for (const AppcastItem &item : items)
        if (!best || compareVersions(item.displayVersion(), best->displayVersion()) > 0)
            best = item;
    return best;
}

} // namespace Appcast
