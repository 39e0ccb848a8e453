// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Feedback.h"
#include "LVCorvelLaminationPDE.h"
#include "PrintDialogCallback.h"
#include "SystemLog.h"

#include <QtCore/QMetaMethod>

#include <algorithm>

namespace {

constexpr std::int32_t largestQual = 25;

constexpr double leastMatte = 0.2;

const QString overcoatKey = QStringLiteral("Overcoat");
const QString isMatteKey = QStringLiteral("isMatte");
const QString qualKey = QStringLiteral("qual");

/// Calls the object's invokable member of that name without arguments, if it has one.
void performNamed(QObject *object, const QString &name)
{
    const QMetaObject *metaObject = object->metaObject();
    const QByteArray signature = name.toUtf8() + "()";
    const int index = metaObject->indexOfMethod(signature.constData());
    if (index >= QObject::staticMetaObject.methodCount())
        metaObject->method(index).invoke(object, Qt::DirectConnection);
}

} // namespace

// Change notices

void LVCorvelLaminationPDE::willChangeValueForKey(const QString &key)
{
    RKTPPRBasePDEcorvel::willChangeValueForKey(key);
    if (key == overcoatKey)
        RKTPPRBasePDEcorvel::willChangeValueForKey(isMatteKey);
}

void LVCorvelLaminationPDE::didChangeValueForKey(const QString &key)
{
    RKTPPRBasePDEcorvel::didChangeValueForKey(key);
    if (key == overcoatKey)
        RKTPPRBasePDEcorvel::didChangeValueForKey(isMatteKey);
}

// Values

void LVCorvelLaminationPDE::setQual(std::int32_t value)
{
    const std::int32_t kept = std::clamp(value, -largestQual, largestQual);
    const bool isClamped = kept != value;
    if (isClamped)
        willChangeValueForKey(qualKey);
    qual_ = kept;
    if (isClamped)
        didChangeValueForKey(qualKey);
}

bool LVCorvelLaminationPDE::isMatte() const
{
    return Overcoat_ == QLatin1String("Matte");
}

void LVCorvelLaminationPDE::setBoundValue(QString &field, const QString &key, const QString &value)
{
    willChangeValueForKey(key);
    field = value;
    didChangeValueForKey(key);
}

void LVCorvelLaminationPDE::setMatteValue(const QString &value)
{
    setBoundValue(MatteValue_, QStringLiteral("MatteValue"), value);
}

void LVCorvelLaminationPDE::setQuality(const QString &value)
{
    setBoundValue(Quality_, QStringLiteral("Quality"), value);
}

void LVCorvelLaminationPDE::setOvercoat(const QString &value)
{
    setBoundValue(Overcoat_, overcoatKey, value);
}

// The store path of bound controls

void LVCorvelLaminationPDE::setValueForBoundControlWithKey(const QString &value, const QString &key)
{
    performNamed(this, key);
    if (!useConstraintHandling_) {
        setChoiceForKey(value, key);
        return;
    }
    auto *printSystem = qobject_cast<pdekit::ConstraintHandling *>(pdePluginCallbackObject_.get());
    if (printSystem->willChangePPDOptionKeyValuePpdChoice(key, value)) {
        pdekit::systemLog(QStringLiteral("changed %1 setting to %2").arg(key, value));
        setChoiceForKey(value, key);
        return;
    }
    pdekit::systemLog(QStringLiteral("Failed to change %1 setting to = %2").arg(key, value));
    pdekit::Feedback::current().alert(
        {QStringLiteral("setting change failed!"),
         QStringLiteral(
             "I tried to make the change you requested but the printing system rejected my efforts. Sorry."),
         QStringLiteral("Bummer!")});
}

// The look of the print

pdekit::Adjustment LVCorvelLaminationPDE::adjustment()
{
    pdekit::Adjustment adjustment;
    if (isOn(QStringLiteral("UsePrinterPanel"))) {
        adjustment.remark = pdeBundle_->localizedString(QStringLiteral("corvelFinishOfPrinterPanel"));
    } else if (presentChoice(overcoatKey) == QStringLiteral("Matte")) {
        const double level = presentNumber(QStringLiteral("MatteValue"), -largestQual, largestQual);
        adjustment.matte = leastMatte + (1 - leastMatte) * (level + largestQual) / (2 * largestQual);
    }
    return adjustment;
}
