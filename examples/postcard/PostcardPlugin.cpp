// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include <pdekit/Adjustment.h>
#include <pdekit/Bundle.h>
#include <pdekit/OptionPanel.h>
#include <pdekit/PrintDialogPlugin.h>

/// The page, with a pop-up for each of the PPD options "Border" and "Tone". The dialog's preview shows the
/// tone, but not the border.
class PostcardPage : public pdekit::OptionPanel, public pdekit::AdjustmentSource
{
    Q_OBJECT
    Q_INTERFACES(pdekit::AdjustmentSource)

public:
    PostcardPage(const pdekit::Bundle &bundle, const pdekit::HostInfo &hostInfo)
        : OptionPanel(bundle, hostInfo,
                      {QStringLiteral("Border and Tone"),
                       QStringLiteral("border"),
                       QStringLiteral("border"),
                       {{1, QStringLiteral("Border")}, {2, QStringLiteral("Tone")}}})
    {
    }

    pdekit::Adjustment adjustment() override
    {
        const QString tone = choice(QStringLiteral("Tone"));
        pdekit::Adjustment adjustment;
        if (tone == QLatin1String("Gray"))
            adjustment.matrix = monochrome({1, 1, 1});
        else if (tone == QLatin1String("Sepia"))
            adjustment.matrix = monochrome({1, 0.93, 0.8});
        return adjustment;
    }

private:
    /// Each new component is the luma of the old color, by the weights of Rec. ITU-R BT.709, times that of
    /// the ink.
    static pdekit::Adjustment::Matrix monochrome(const std::array<double, 3> &ink)
    {
        pdekit::Adjustment::Matrix matrix;
        for (std::size_t row = 0; row < 3; ++row)
            matrix[row] = {ink[row] * 0.2126, ink[row] * 0.7152, ink[row] * 0.0722};
        return matrix;
    }
};

/// The plug-in's principal class.
class PostcardPlugin : public QObject, public pdekit::PrintDialogPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrintDialogPlugin_iid FILE "Info.json")
    Q_INTERFACES(pdekit::PrintDialogPlugin)

public:
    bool initWithBundle(const pdekit::Bundle &bundle) override
    {
        bundle_ = bundle;
        return bundle.identifier() == QLatin1String("org.corvel.examples.Postcard");
    }

    std::optional<pdekit::PanelList> PDEPanelsForTypeWithHostInfo(const QString &type,
                                                                  const pdekit::HostInfo &hostInfo) override
    {
        if (type != QLatin1String(pdekit::PrinterPanelsType))
            return std::nullopt;
        pdekit::PanelList panels;
        panels.push_back(std::make_unique<PostcardPage>(*bundle_, hostInfo));
        return panels;
    }

private:
    std::optional<pdekit::Bundle> bundle_;
};

#include "PostcardPlugin.moc"
