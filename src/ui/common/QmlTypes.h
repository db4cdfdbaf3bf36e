#pragma once
// Types and enums that the desktop face's QML uses, registered once under the
// module "Sulkbox" 1.0. The model, the settings and the localizer reach QML as
// context properties (see DesktopContext.h); what is registered here are the
// enums and the types QML names.

namespace QmlTypes {

// Safe to call more than once.
void registerAll();

} // namespace QmlTypes
