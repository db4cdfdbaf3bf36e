#include "l10n/Localizer.h"

#include "settings/AppSettings.h"
#include "settings/Settings.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <memory>

const QList<AppLanguage> &allAppLanguages()
{
    static const QList<AppLanguage> all = {AppLanguage::system, AppLanguage::en, AppLanguage::zhHans,
                                           AppLanguage::zhHant, AppLanguage::ja, AppLanguage::ko,
                                           AppLanguage::th};
    return all;
}

const QList<AppLanguage> &concreteLanguages()
{
    static const QList<AppLanguage> concrete = allAppLanguages().mid(1);
    return concrete;
}

QString languageRawText(AppLanguage lang)
{
    switch (lang) {
    case AppLanguage::system: return QStringLiteral("system");
    case AppLanguage::en: return QStringLiteral("en");
    case AppLanguage::zhHans: return QStringLiteral("zhHans");
    case AppLanguage::zhHant: return QStringLiteral("zhHant");
    case AppLanguage::ja: return QStringLiteral("ja");
    case AppLanguage::ko: return QStringLiteral("ko");
    case AppLanguage::th: return QStringLiteral("th");
    }
    return QStringLiteral("system");
}

std::optional<AppLanguage> languageFromRawText(const QString &raw)
{
    for (AppLanguage lang : allAppLanguages())
        if (languageRawText(lang) == raw)
            return lang;
    return std::nullopt;
}

namespace {

// One compiled translation per language other than English, embedded at
// build time; the context is "LocKey" and the source is the English text.
const QHash<AppLanguage, std::shared_ptr<QTranslator>> &translators()
{
    static const auto table = [] {
        QHash<AppLanguage, std::shared_ptr<QTranslator>> map;
        for (AppLanguage lang : concreteLanguages()) {
            if (lang == AppLanguage::en)
                continue;
            auto translator = std::make_shared<QTranslator>();
            if (translator->load(QStringLiteral(":/i18n/sulkbox_%1.qm").arg(languageRawText(lang))))
                map.insert(lang, translator);
        }
        return map;
    }();
    return table;
}

} // namespace

Localizer::Localizer()
{
    apply(languageFromRawText(Settings::text(Settings::Key::appLanguage)).value_or(AppLanguage::system), true);
    // The language follows the setting wherever it is changed.
    connect(&AppSettings::shared(), &AppSettings::appLanguageChanged, this, &Localizer::reload);
    // A locale change is announced to the application object.
    if (QCoreApplication *app = QCoreApplication::instance())
        app->installEventFilter(this);
}

Localizer &Localizer::shared()
{
    static Localizer *instance = new Localizer; // lives for the whole process
    return *instance;
}

void Localizer::apply(AppLanguage lang, bool askSystem)
{
    if (askSystem)
        m_system = systemLanguage();
    const AppLanguage concrete = lang == AppLanguage::system ? m_system : lang;
    if (lang == m_language && concrete == m_concrete)
        return;
    m_language = lang;
    if (concrete != m_concrete)
        m_texts = {};
    m_concrete = concrete;
    emit languageChanged();
}

void Localizer::reload()
{
    const auto stored = languageFromRawText(Settings::text(Settings::Key::appLanguage));
    apply(stored.value_or(AppLanguage::system), true);
}

void Localizer::systemLocaleChanged()
{
    apply(m_language, true);
}

bool Localizer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LocaleChange && watched == QCoreApplication::instance())
        systemLocaleChanged();
    return false;
}

void Localizer::setLanguage(AppLanguage lang)
{
    Settings::set(Settings::Key::appLanguage, languageRawText(lang));
    // Writing the setting may already have announced it (through reload).
    apply(lang, lang == AppLanguage::system);
}

AppLanguage Localizer::concrete() const
{
    return m_concrete;
}

AppLanguage Localizer::languageForTag(const QString &tag)
{
    if (tag.startsWith(u"zh"))
        return tag.contains(u"Hant") ? AppLanguage::zhHant : AppLanguage::zhHans;
    if (tag.startsWith(u"ja"))
        return AppLanguage::ja;
    if (tag.startsWith(u"ko"))
        return AppLanguage::ko;
    if (tag.startsWith(u"th"))
        return AppLanguage::th;
    return AppLanguage::en;
}

AppLanguage Localizer::languageForPreferred(const QStringList &preferred)
{
    if (preferred.isEmpty())
        return AppLanguage::en;
    // Qt spells one preference several ways in a row ("zh-TW", then
    // "zh-Hant-TW"). Only the first preference counts, but where Qt also
    // gives it with its script, that spelling says which Chinese is meant.
    const QString first = preferred.first();
    const QString language = first.section(u'-', 0, 0);
    QString chosen = first;
    for (const QString &tag : preferred) {
        if (tag.section(u'-', 0, 0) != language)
            break;
        const QString script = tag.section(u'-', 1, 1);
        if (script.size() == 4 && script.front().isUpper()) {
            chosen = tag;
            break;
        }
    }
    return languageForTag(chosen);
}

namespace {
std::function<QStringList()> &preferredSource()
{
    static std::function<QStringList()> source;
    return source;
}
} // namespace

void Localizer::setPreferredLanguagesSource(std::function<QStringList()> source)
{
    preferredSource() = std::move(source);
}

AppLanguage Localizer::systemLanguage()
{
    if (const auto &source = preferredSource())
        return languageForPreferred(source());
    // Qt builds this list from LANGUAGE, LC_ALL, LC_MESSAGES and LANG.
    return languageForPreferred(QLocale::system().uiLanguages());
}

std::optional<QString> Localizer::tableText(LocKey key, AppLanguage lang)
{
    const auto it = translators().constFind(lang);
    if (it == translators().constEnd())
        return std::nullopt;
    const QString english = rawValue(key);
    if (english.isEmpty())
        return std::nullopt;
    const QString text = (*it)->translate("LocKey", english.toUtf8().constData());
    if (text.isEmpty())
        return std::nullopt;
    return text;
}

QString Localizer::fill(const QString &format, const QStringList &args)
{
    if (args.isEmpty())
        return format;
    QString out;
    out.reserve(format.size() + 16);
    int next = 0;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format[i] == u'%' && i + 1 < format.size() && format[i + 1] == u'@' && next < args.size()) {
            out += args[next++];
            ++i;
        } else {
            out += format[i];
        }
    }
    return out;
}

QString Localizer::t(LocKey key, const QStringList &args) const
{
    const int index = int(key);
    if (index < 0 || index >= locKeyCount)
        return {};
    // Each text is looked up once per language; the lookup converts and
    // hashes the English text.
    std::optional<QString> &text = m_texts[size_t(index)];
    if (!text) {
        if (m_concrete != AppLanguage::en)
            text = tableText(key, m_concrete);
        if (!text)
            text = rawValue(key);
    }
    return fill(*text, args);
}

QString Localizer::pickerName(AppLanguage lang) const
{
    switch (lang) {
    case AppLanguage::system: return t(LocKey::autoLanguage);
    case AppLanguage::en: return QStringLiteral("English");
    case AppLanguage::zhHans: return QStringLiteral("简体中文");
    case AppLanguage::zhHant: return QStringLiteral("繁體中文");
    case AppLanguage::ja: return QStringLiteral("日本語");
    case AppLanguage::ko: return QStringLiteral("한국어");
    case AppLanguage::th: return QStringLiteral("ไทย");
    }
    return {};
}
