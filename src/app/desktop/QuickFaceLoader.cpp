// sulkbox-desktop's way to the Qt Quick half: the module next to it.

#include "app/desktop/QuickFace.h"

#include <QCoreApplication>
#include <QLibrary>

namespace QuickFaceLoader {

QuickFace *load(const QuickFace::Context &context, QObject *parent, QString *error)
{
    QLibrary module(QCoreApplication::applicationDirPath() + QStringLiteral("/libsulkbox_quick"));
    auto create = reinterpret_cast<decltype(&sulkbox_create_quick_face)>(module.resolve("sulkbox_create_quick_face"));
    if (!create) {
        if (error)
            *error = module.errorString();
        return nullptr;
    }
    return create(context, parent); // the module stays loaded for the rest of the run
}

} // namespace QuickFaceLoader
