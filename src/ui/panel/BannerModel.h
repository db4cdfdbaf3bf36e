#pragma once
// What the mood banner at the top of the panel shows, kept in C++ so the
// QML only lays it out: the face, the name line, the phrase and reason of
// the shown mood (the reaction while one is set), the roast on show and the
// quip of the latest poke. Texts follow the interface language, Savage Mode
// and the pet name as soon as they change.

#include "personality/Mood.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QString>

class PokeTracker;
#include "model/SystemMonitor.h"

class BannerModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(SystemMonitor *monitor READ monitor WRITE setMonitor NOTIFY monitorChanged)
    Q_PROPERTY(QString face READ face NOTIFY contentChanged)
    Q_PROPERTY(QString nameLine READ nameLine NOTIFY nameLineChanged)
    Q_PROPERTY(QString phrase READ phrase NOTIFY contentChanged)
    Q_PROPERTY(QString reason READ reason NOTIFY contentChanged)
    Q_PROPERTY(QColor tint READ tint NOTIFY contentChanged)
    Q_PROPERTY(bool roastActive READ roastActive NOTIFY contentChanged)
    Q_PROPERTY(QString roastLine READ roastLine NOTIFY contentChanged)
    Q_PROPERTY(bool hasQuip READ hasQuip NOTIFY quipChanged)
    Q_PROPERTY(QString quip READ quip NOTIFY quipChanged)

public:
    explicit BannerModel(QObject *parent = nullptr);
    ~BannerModel() override;

    static QString quoted(const QString &text);
    // The smirk that replaces the face while a savage roast is on show.
    static QString savageFace();

    SystemMonitor *monitor() const { return m_monitor; }
    void setMonitor(SystemMonitor *monitor);

    // The mood on show: the reaction while one is set, else the mood.
    const Mood &shownMood() const;
    QString face() const;
    QString nameLine() const;
    QString phrase() const;
    QString reason() const;
    QColor tint() const;
    bool roastActive() const;
    // The roast between typographic quotes; empty when none is on show.
    QString roastLine() const;
    bool hasQuip() const;
    // The quip between typographic quotes; empty when none is on show.
    QString quip() const;

    PokeTracker *pokes() const { return m_pokes; }

    // One poke on the banner, with the mood on show at this moment.
    Q_INVOKABLE void poke();

signals:
    void monitorChanged();
    void contentChanged();
    void nameLineChanged();
    void quipChanged();
    // The face should grow, tilt and spring back.
    void bounce();

private:
    void roastEventChanged();

    QPointer<SystemMonitor> m_monitor;
    PokeTracker *m_pokes = nullptr;
};
