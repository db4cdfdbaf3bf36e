#include "personality/Content.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace PersonalityContent {

namespace {

QHash<QString, QStringList> readLists(const QJsonValue &value)
{
    QHash<QString, QStringList> out;
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!it.value().isArray())
            continue;
        QStringList lines;
        for (const QJsonValue &entry : it.value().toArray()) {
            const QString line = entry.toString();
            if (!line.trimmed().isEmpty())
                lines.append(line);
        }
        out.insert(it.key(), lines);
    }
    return out;
}

} // namespace

std::optional<LanguageFile> parse(const QByteArray &json)
{
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return std::nullopt;
    const QJsonObject root = doc.object();
    return LanguageFile{readLists(root.value(QLatin1String("quips"))),
                        readLists(root.value(QLatin1String("roasts")))};
}

const QHash<AppLanguage, LanguageFile> &files()
{
    static const QHash<AppLanguage, LanguageFile> table = [] {
        QHash<AppLanguage, LanguageFile> map;
        for (AppLanguage lang : concreteLanguages()) {
            QFile file(QStringLiteral(":/personality/content/%1.json").arg(languageRawText(lang)));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            if (auto parsed = parse(file.readAll()))
                map.insert(lang, std::move(*parsed));
        }
        return map;
    }();
    return table;
}

} // namespace PersonalityContent
