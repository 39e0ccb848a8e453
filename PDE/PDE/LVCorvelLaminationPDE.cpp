// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelLaminationPDE.h"

#include "BundleIdentifier.h"
#include "ControlValues.h"
#include "ViewTags.h"

#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>

namespace {

struct LaminationCell
{
    int cellTag;
    QLatin1String choice;
};

constexpr std::array<LaminationCell, 4> laminationCells = {{
    {10, QLatin1String("Standard")},
    {11, QLatin1String("Fine")},
    {12, QLatin1String("Glossy")},
    {13, QLatin1String("Matte")},
}};

constexpr int firstRetiredTag = 2;
constexpr int companionBits = 160;
constexpr int retiredBit = 256;
constexpr int retiredHeight = 100; // points

/// Whether the PPD is that of the model whose finish this panel does not show. Case-insensitive.
bool namesModel(const QByteArray &ppd)
{
    constexpr QLatin1String model("K9031");
    const auto sameLetter = [](char a, char b) {
        return QChar::fromLatin1(a).toUpper() == QChar::fromLatin1(b).toUpper();
    };
    return std::search(ppd.begin(), ppd.end(), model.begin(), model.end(), sameLetter) != ppd.end();
}

/// Removes a control from the panel: a search for its tag no longer finds it.
void retire(QWidget *view, int tag)
{
    view->setEnabled(false);
    view->setHidden(true);
    pdekit::setTag(view, tag | retiredBit);
}

} // namespace

RKTPPRBasePDEcorvel::Text LVCorvelLaminationPDE::nibName()
{
    return QStringLiteral("corvelMatte");
}

RKTPPRBasePDEcorvel::Text LVCorvelLaminationPDE::panelName()
{
    if (!thePDEName_)
        thePDEName_ = pdeBundle_->localizedString(QStringLiteral("corvelOptions"));
    return thePDEName_;
}

RKTPPRBasePDEcorvel::Text LVCorvelLaminationPDE::panelKind() const
{
    return QStringLiteral(CORVEL_9031_BUNDLE_IDENTIFIER ".matte");
}

QStringList LVCorvelLaminationPDE::supportedPPDOptionKeys()
{
    if (!supportedPPDOptionKeys_) {
        supportedPPDOptionKeys_ = {QStringLiteral("Overcoat"), QStringLiteral("Quality"),
                                   QStringLiteral("UsePrinterPanel"), QStringLiteral("MatteValue")};
    }
    return *supportedPPDOptionKeys_;
}

RKTPPRBasePDEcorvel::Text LVCorvelLaminationPDE::ppdOptionKeyForTag(int tag) const
{
    switch (tag) {
    case 1:
        return QStringLiteral("Quality");
    case 2:
        return QStringLiteral("Overcoat");
    case 3:
        return QStringLiteral("MatteValue");
    case enablerTag:
        return QStringLiteral("UsePrinterPanel");
    default:
        return std::nullopt;
    }
}

RKTPPRBasePDEcorvel::Text LVCorvelLaminationPDE::ppdChoiceForTag(int cellTag) const
{
    for (const LaminationCell &cell : laminationCells) {
        if (cell.cellTag == cellTag)
            return QString(cell.choice);
    }
    return std::nullopt;
}

int LVCorvelLaminationPDE::tagForStringValue(const Text &value) const
{
    for (const LaminationCell &cell : laminationCells) {
        if (value && *value == cell.choice)
            return cell.cellTag;
    }
    return 0;
}

int LVCorvelLaminationPDE::enablerState(QWidget *enabler) const
{
    return pdekit::state(enabler).value_or(0) == 0 ? 1 : 0;
}

// Showing

bool LVCorvelLaminationPDE::retiresControls()
{
    const std::optional<QByteArray> ppd = ppdDataCopy();
    return ppd && namesModel(*ppd);
}

QStringList LVCorvelLaminationPDE::retiredOptionKeys()
{
    QStringList keys;
    if (!retiresControls())
        return keys;
    for (int tag = firstRetiredTag; const Text key = ppdOptionKeyForTag(tag); ++tag)
        keys += *key;
    return keys;
}

void LVCorvelLaminationPDE::willShow()
{
    if (!retiresControls())
        return;
    QWidget *view = panelView();
    if (!view)
        return;
    retireControls(view);
    // At every call, even when nothing is left to retire: the shifts add up.
    if (QWidget *defaultsButton = pdekit::viewWithTag(view, defaultsTag))
        defaultsButton->move(defaultsButton->x(), defaultsButton->y() - retiredHeight);
    view->resize(view->width(), view->height() - retiredHeight);
}

void LVCorvelLaminationPDE::retireControls(QWidget *view)
{
    int tag = firstRetiredTag;
    while (QWidget *control = pdekit::viewWithTag(view, tag)) {
        retire(control, tag);
        for (const int companionTag : {tag | partnerBits, tag | companionBits}) {
            if (QWidget *companion = pdekit::viewWithTag(view, companionTag))
                retire(companion, companionTag);
        }
        ++tag;
    }
}
