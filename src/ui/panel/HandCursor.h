#pragma once
// The pointing hand over a clickable header. Entering pushes it onto the
// application's cursor stack and leaving pops it; only a real change of
// `hovering` does either, so pushes and pops always pair. An item that goes
// away under the pointer (the panel closes) pops its push.

#include <QObject>

class HandCursor : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hovering READ hovering WRITE setHovering NOTIFY hoveringChanged)

public:
    using QObject::QObject;
    ~HandCursor() override;

    bool hovering() const { return m_hovering; }
    void setHovering(bool hovering);

signals:
    void hoveringChanged();

private:
    bool m_hovering = false;
};
