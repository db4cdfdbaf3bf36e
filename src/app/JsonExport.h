#pragma once
// Every record of the model, and the mood, as JSON in the model's own units.

#include <QJsonObject>

class Localizer;
class Mood;
class SystemMonitor;

namespace JsonExport {

QJsonObject monitor(const SystemMonitor &monitor, const Mood &mood, const Localizer &loc);

// Any Q_GADGET value held in a QVariant, property by property.
QJsonValue value(const QVariant &v);

} // namespace JsonExport
