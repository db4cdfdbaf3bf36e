#pragma once
// The update feed: an RSS 2.0 document whose items each describe one
// release, as desktop applications publish them:
//
//   <rss version="2.0" xmlns:sparkle="…">
//     <channel>
//       <item>
//         <title>sulkbox 1.2</title>
//         <link>https://example.org/sulkbox/1.2</link>          page of the release
//         <description>What changed…</description>             notes (HTML or text)
//         <sparkle:version>42</sparkle:version>                   build
//         <sparkle:shortVersionString>1.2</sparkle:shortVersionString>
//         <sparkle:releaseNotesLink>https://…</sparkle:releaseNotesLink>
//         <enclosure url="https://…/sulkbox-1.2.tar.gz" length="…" type="…"
//                    sparkle:version="42" sparkle:shortVersionString="1.2"/>
//       </item>
//     </channel>
//   </rss>
//
// The version fields may sit on the item or on its enclosure, under any
// namespace prefix. An item counts when it names a version. Its version as
// shown and compared is the short version string, or the version where there
// is none; it is compared with this build's project version.

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

struct AppcastItem {
    QString title;
    QString version;
    QString shortVersion;
    QUrl link;
    QUrl releaseNotesLink;
    QUrl enclosureUrl;
    // The item's description as plain text.
    QString notes;

    // The version as people read it ("1.2").
    QString displayVersion() const { return shortVersion.isEmpty() ? version : shortVersion; }
    // Where the browser goes to get this release: the release's page, else
    // its file. Only web addresses; empty when the item has none.
    QUrl downloadPage() const;
    // The release notes page, web addresses only.
    QUrl notesPage() const;
};

namespace Appcast {

// The items of a feed in document order, or nothing when the text is not an
// RSS document (not XML, another root element, broken markup).
std::optional<QList<AppcastItem>> parse(const QByteArray &xml);

// Compares two version texts part by part: -1, 0 or 1. Numbers compare as
// numbers (1.10 > 1.9), missing parts count as zero (1.2 == 1.2.0), a leading
// "v" is ignored, and a pre-release ("1.2-beta") comes before its release.
int compareVersions(const QString &a, const QString &b);

// The item with the highest version, if any.
std::optional<AppcastItem> newest(const QList<AppcastItem> &items);

// Whether the browser may be sent to this address (http or https).
bool isWebAddress(const QUrl &url);

} // namespace Appcast
