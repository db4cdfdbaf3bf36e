#pragma once
// The interface language: the user's choice (persisted under "appLanguage"),
// its resolution to a concrete language, and text lookup by LocKey.

#include "l10n/LocKey.h"

#include <QEvent>
#include <QObject>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>

namespace AppLanguages {
Q_NAMESPACE
enum class AppLanguage { system, en, zhHans, zhHant, ja, ko, th };
Q_ENUM_NS(AppLanguage)
} // namespace AppLanguages

using AppLanguage = AppLanguages::AppLanguage;

// All seven, in picker order.
const QList<AppLanguage> &allAppLanguages();
// The six concrete ones (every case but `system`).
const QList<AppLanguage> &concreteLanguages();
// "system", "en", "zhHans", …
QString languageRawText(AppLanguage lang);
std::optional<AppLanguage> languageFromRawText(const QString &raw);

class Localizer : public QObject {
    Q_OBJECT
    Q_PROPERTY(AppLanguage language READ language WRITE setLanguage NOTIFY languageChanged)
    Q_PROPERTY(AppLanguage concrete READ concrete NOTIFY languageChanged)

public:
    static Localizer &shared();

    AppLanguage language() const { return m_language; }
    void setLanguage(AppLanguage lang);
    AppLanguage concrete() const;

    // The concrete language for the operating system's preference.
    static AppLanguage systemLanguage();
    // Where the system's ordered preferred languages come from: Qt's reading
    // of LANGUAGE, LC_ALL, LC_MESSAGES and LANG unless tests hand in their
    // own (an empty function restores it). Takes effect at the next
    // resolution, such as systemLocaleChanged().
    static void setPreferredLanguagesSource(std::function<QStringList()> source);
    // The mapping of one language tag (zh-Hant-TW → zhHant, de → en).
    static AppLanguage languageForTag(const QString &tag);
    // The language for an ordered list of preferred tags, as Qt reports them.
    static AppLanguage languageForPreferred(const QStringList &preferred);

    // The text for `key` in the concrete language, each "%@" filled in order
    // by the arguments; without arguments the text is returned as written.
    QString t(LocKey key, const QStringList &args = {}) const;
    Q_INVOKABLE QString text(LocKey key, const QStringList &args = {}) const { return t(key, args); }

    // The picker's name of a language, in the current interface language.
    QString pickerName(AppLanguage lang) const;

    // Fills each "%@" of `format` by the next argument.
    static QString fill(const QString &format, const QStringList &args);

    // The table's text for a key and a language, if the table has one.
    static std::optional<QString> tableText(LocKey key, AppLanguage lang);

    // Re-reads "appLanguage" from the settings (for tests and `--lang`).
    void reload();
    // Asks the system for its preferred languages again. Runs by itself when
    // the application hears that the locale changed.
    void systemLocaleChanged();

signals:
    // The choice or the language it resolves to changed.
    void languageChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Localizer();
    // Sets the choice and its resolution; announces a change of either.
    void apply(AppLanguage lang, bool askSystem);

    AppLanguage m_language = AppLanguage::system;
    // The system's preference, resolved when the choice or the locale
    // changes rather than on every lookup (it reads the environment).
    AppLanguage m_system = AppLanguage::en;
    AppLanguage m_concrete = AppLanguage::en;
    // The texts of m_concrete looked up so far, by key.
    mutable std::array<std::optional<QString>, locKeyCount> m_texts;
};
