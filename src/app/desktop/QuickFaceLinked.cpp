// Where the Qt Quick half is linked in (the tests), it is simply there.

#include "app/desktop/QuickFace.h"

namespace QuickFaceLoader {

QuickFace *load(const QuickFace::Context &context, QObject *parent, QString *error)
{
    Q_UNUSED(error);
    return sulkbox_create_quick_face(context, parent);
}

} // namespace QuickFaceLoader
