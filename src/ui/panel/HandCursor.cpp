#include "ui/panel/HandCursor.h"

#include <QCursor>
#include <QGuiApplication>

HandCursor::~HandCursor()
{
    if (m_hovering)
        QGuiApplication::restoreOverrideCursor();
}

void HandCursor::setHovering(bool hovering)
{
    if (hovering == m_hovering)
        return;
    m_hovering = hovering;
    if (hovering)
        QGuiApplication::setOverrideCursor(QCursor(Qt::PointingHandCursor));
    else
        QGuiApplication::restoreOverrideCursor();
    emit hoveringChanged();
}
