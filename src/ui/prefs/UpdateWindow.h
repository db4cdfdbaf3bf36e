#pragma once
// The small window that tells the result of an update check: checking, up to
// date, a newer version (with its notes, its release notes page and a button
// that opens its download page in the browser), or why the check failed.
// A check the user asked for always shows it; an automatic check shows it
// only when a newer version exists. QML: qrc:/sulkbox/qml/UpdateResult.qml,
// on the shared engine, context property `updateCheck`.

#include "app/desktop/Updater.h"

#include <QObject>
#include <QPointer>

class QQmlContext;
class QQuickWindow;

class UpdateWindow : public QObject {
    Q_OBJECT
    // "checking", "upToDate", "available" or "failed".
    Q_PROPERTY(QString state READ state NOTIFY changed)
    Q_PROPERTY(QString newVersion READ newVersion NOTIFY changed)
    Q_PROPERTY(QString currentVersion READ currentVersion NOTIFY changed)
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    // Why a check failed: "unreachable", "timedOut", "serverError", "badFeed", "notConfigured".
    Q_PROPERTY(QString failure READ failure NOTIFY changed)
    // What the server said ("HTTP 404"), for "serverError".
    Q_PROPERTY(QString errorCode READ errorCode NOTIFY changed)
    Q_PROPERTY(bool hasDownloadPage READ hasDownloadPage NOTIFY changed)
    Q_PROPERTY(bool hasReleaseNotes READ hasReleaseNotes NOTIFY changed)
    Q_PROPERTY(QString iconSource READ iconSource CONSTANT)

public:
    // The window for Updater::shared().
    static UpdateWindow &shared();
    explicit UpdateWindow(Updater &updater, QObject *parent = nullptr);
    ~UpdateWindow() override;

    Updater &updater() const { return m_updater; }

    // The user asked: show the window and check.
    void checkNow();

    // The window, once made (on the first result to show).
    QQuickWindow *window() const;
    bool isShowing() const;

    QString state() const { return m_state; }
    QString newVersion() const { return m_result.item.displayVersion(); }
    QString currentVersion() const { return m_result.currentVersion; }
    QString notes() const { return m_result.item.notes; }
    QString failure() const;
    QString errorCode() const;
    bool hasDownloadPage() const { return m_result.item.downloadPage().isValid(); }
    bool hasReleaseNotes() const { return m_result.item.notesPage().isValid(); }
    QString iconSource() const;

    // Opens the release's page in the browser and closes the window.
    Q_INVOKABLE void openDownloadPage();
    Q_INVOKABLE void openReleaseNotes();
    Q_INVOKABLE void close();

    // Shows a check's result (an automatic one only when a newer version
    // exists). Connected to the updater; also called by the desktop process
    // with a result that came before this window existed.
    void report(const Updater::Result &result, bool userInitiated);
    // Drops the window (before the QML engine it came from goes away).
    void discardWindow();

signals:
    void changed();

private:
    void onStarted(bool userInitiated);
    void show();

    Updater &m_updater;
    QString m_state;
    Updater::Result m_result;
    QPointer<QQmlContext> m_context;
    QPointer<QQuickWindow> m_window;
};
