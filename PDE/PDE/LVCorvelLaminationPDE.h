// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Adjustment.h"
#include "RKTPPRBasePDEcorvel.h"
#include "RetiredOptions.h"

#include <cstdint>

/// The panel of the print quality and the surface finish. For the K9031 it retires the controls of the
/// finish, which the dialog then shows on its own page of options (RetiredOptions); the panel still saves
/// what is chosen there.
///
/// Its bound values (Quality, Overcoat, MatteValue, qual, isMatte) follow the controls through the form's
/// bindings.
class LVCorvelLaminationPDE : public RKTPPRBasePDEcorvel,
                              public pdekit::RetiredOptions,
                              public pdekit::AdjustmentSource
{
    Q_OBJECT
    Q_INTERFACES(pdekit::RetiredOptions pdekit::AdjustmentSource)
    Q_PROPERTY(QString MatteValue READ matteValue WRITE setMatteValue)
    Q_PROPERTY(QString Quality READ quality WRITE setQuality)
    Q_PROPERTY(QString Overcoat READ overcoat WRITE setOvercoat)
    Q_PROPERTY(int qual READ qual WRITE setQual)
    Q_PROPERTY(bool isMatte READ isMatte)

public:
    /// Does not refresh the controls. For the K9031 each call moves the defaults button 100 points up and
    /// takes 100 points of the panel's height.
    void willShow() override;
    Text nibName() override;
    Text panelName() override;
    Text panelKind() const override;
    QStringList supportedPPDOptionKeys() override;
    /// Those of the finish, for the K9031.
    QStringList retiredOptionKeys() override;
    Text ppdOptionKeyForTag(int tag) const override;
    Text ppdChoiceForTag(int cellTag) const override;
    int tagForStringValue(const Text &value) const override;
    /// Inverted: a checked box disables the option controls.
    int enablerState(QWidget *enabler) const override;

    /// The matte finish, from a fifth of the most matte surface at the lowest matte level to all of it at the
    /// highest. What is set on the printer itself is not known: then there is only a remark.
    pdekit::Adjustment adjustment() override;

    /// A change of "Overcoat" is also a change of "isMatte".
    void willChangeValueForKey(const QString &key) override;
    void didChangeValueForKey(const QString &key) override;

    Q_INVOKABLE std::int32_t qual() const { return qual_; }
    /// Keeps `qual` within -25 to 25; notifies of the change when the value had to be clamped.
    void setQual(std::int32_t value);
    Q_INVOKABLE bool isMatte() const;

    QString matteValue() const { return MatteValue_; }
    void setMatteValue(const QString &value);
    QString quality() const { return Quality_; }
    void setQuality(const QString &value);
    QString overcoat() const { return Overcoat_; }
    void setOvercoat(const QString &value);

    /// Stores a bound value as the choice for the option, after asking the print system in
    /// constraint-handling mode. A refusal is answered with an alert, and nothing is stored or put back. An
    /// invokable member without arguments that is named `key` is called first, and its result dropped.
    Q_INVOKABLE void setValueForBoundControlWithKey(const QString &value, const QString &key);

private:
    bool retiresControls();
    void retireControls(QWidget *view);
    void setBoundValue(QString &field, const QString &key, const QString &value);

    QString MatteValue_;
    QString Quality_;
    QString Overcoat_;
    std::int32_t qual_ = 0;
};
