// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FormLoader.h"

#include "Bindings.h"
#include "Bundle.h"
#include "ControlAction.h"
#include "KeyValueObject.h"
#include "NumberField.h"
#include "PlatformException.h"
#include "RadioMatrix.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QVariant>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QWidget>

namespace pdekit {

namespace {

/// Creates the kit's own controls besides Qt's.
class Loader final : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        if (className != QLatin1String("RadioMatrix"))
            return QUiLoader::createWidget(className, parent, name);
        auto *matrix = new RadioMatrix(parent);
        matrix->setObjectName(name);
        return matrix;
    }

    /// A column in place of an unknown layout: QUiLoader continues as if it had received one.
    QLayout *createLayout(const QString &className, QObject *parent, const QString &name) override
    {
        if (QLayout *layout = QUiLoader::createLayout(className, parent, name))
            return layout;
        return QUiLoader::createLayout(QStringLiteral("QVBoxLayout"), parent, name);
    }
};

/// One loader serves all forms. Its constructor would load all of the system's Designer plug-ins, which takes
/// tens of milliseconds; none is needed, since stock widgets are built in.
Loader &sharedLoader()
{
    static Loader *const loader = [] {
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        auto *made = new Loader;
        QCoreApplication::setLibraryPaths(paths);
        return made;
    }();
    return *loader;
}

QMetaMethod actionOf(const QObject *owner, const QString &name)
{
    const QByteArray signature = name.toUtf8() + "(QObject*)";
    const int index = owner->metaObject()->indexOfMethod(signature.constData());
    if (index < 0) {
        throw PlatformException(QStringLiteral("%1 has no action \"%2\"")
                                    .arg(QString::fromLatin1(owner->metaObject()->className()), name));
    }
    return owner->metaObject()->method(index);
}

void connectToOwner(QWidget *control, QObject *owner)
{
    const QString name = control->property("action").toString();
    if (name.isEmpty())
        return;
    const QMetaMethod action = actionOf(owner, name);
    connectAction(control, owner, [action, owner, control] {
        action.invoke(owner, Qt::DirectConnection, Q_ARG(QObject *, control));
    });
}

void localizeAccessibleTexts(QWidget *view, const Bundle &bundle)
{
    if (!view->accessibleName().isEmpty())
        view->setAccessibleName(bundle.localizedString(view->accessibleName()));
    if (!view->accessibleDescription().isEmpty())
        view->setAccessibleDescription(bundle.localizedString(view->accessibleDescription()));
}

/// Scales widgets without a layout by the factor by which the font is larger than the form expects.
void fitToFont(QWidget *view, const QList<QWidget *> &views)
{
    const int lineHeight = view->property("lineHeight").toInt();
    const double factor = lineHeight > 0 ? double(view->fontMetrics().height()) / lineHeight : 1;
    if (factor <= 1)
        return;
    for (QWidget *each : views) {
        const bool isPlacedByHand = each == view || !each->parentWidget()->layout();
        const QRect area = each->geometry();
        if (isPlacedByHand)
            each->setGeometry(
                QRectF(area.topLeft().toPointF() * factor, area.size().toSizeF() * factor).toRect());
    }
}

} // namespace

std::unique_ptr<QWidget> loadForm(const Bundle &bundle, const QString &name, KeyValueObject *owner)
{
    const std::optional<QString> path = bundle.pathForResource(name, QStringLiteral("ui"));
    if (!path)
        return nullptr;
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    std::unique_ptr<QWidget> view(sharedLoader().load(&file));
    if (!view || view->objectName() != QLatin1String("PDEView"))
        return nullptr;
    QList<QWidget *> views = view->findChildren<QWidget *>();
    views.prepend(view.get());
    fitToFont(view.get(), views);
    for (QWidget *each : std::as_const(views)) {
        connectToOwner(each, owner);
        localizeAccessibleTexts(each, bundle);
    }
    NumberField::attachIn(view.get(), bundle);
    bindControls(view.get(), owner);
    return view;
}

} // namespace pdekit
