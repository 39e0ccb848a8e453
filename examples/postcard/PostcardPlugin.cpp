// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include <pdekit/Bundle.h>
#include <pdekit/OptionPanel.h>
#include <pdekit/PrintDialogPlugin.h>

/// The plug-in's principal class. It has one page, with a pop-up for the PPD option "Border".
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
        const pdekit::OptionPanel::Control popUp = {1, QStringLiteral("Border")};
        pdekit::PanelList panels;
        panels.push_back(
            std::make_unique<pdekit::OptionPanel>(*bundle_, hostInfo,
                                                  pdekit::OptionPanel::Page{QStringLiteral("Postcard Border"),
                                                                            QStringLiteral("border"),
                                                                            QStringLiteral("border"),
                                                                            {popUp}}));
        return panels;
    }

private:
    std::optional<pdekit::Bundle> bundle_;
};

#include "PostcardPlugin.moc"
