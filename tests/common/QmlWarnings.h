#pragma once
// QML warnings are failures in the desktop face's tests. Call
// QmlWarnings::catchAll() once (initTestCase) and QML_CLEAN() at the end of
// every test (cleanup()): it fails the test with every QML or JavaScript
// warning logged since the last check.

#include <QStringList>
#include <QTest>

namespace QmlWarnings {

// Installs a message handler that keeps every warning that comes from QML
// (a .qml location, the qml/js logging categories, binding loops), and
// passes all messages on to the previous handler.
void catchAll();

// The warnings caught since the last call, which are forgotten.
QStringList take();

} // namespace QmlWarnings

#define QML_CLEAN()                                                                                            \
    do {                                                                                                       \
        const QStringList qmlWarnings_ = QmlWarnings::take();                                                  \
        QVERIFY2(qmlWarnings_.isEmpty(), qPrintable(qmlWarnings_.join(QLatin1Char('\n'))));                    \
    } while (false)
