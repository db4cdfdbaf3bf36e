#pragma once
// The setter of a painted item's property: stores the new value and, when it
// differs from the old one, tells QML (the property's NOTIFY signal) and
// schedules a repaint.

template <typename Item, typename T>
void setAndRepaint(Item *item, T &field, const T &value, void (Item::*changed)())
{
    if (value == field)
        return;
    field = value;
    (item->*changed)();
    item->update();
}
