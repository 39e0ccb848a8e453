// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsPpd.h"
#include "PrintDialogCallback.h"
#include "PrintSession.h"
#include "Printer.h"
#include "RKTPPRBasePDEcorvel.h"

#include <utility>

namespace {

/// The PPD dictionary at the top level of the session's print settings; null when there is none.
pdekit::PPDDictionary *printSettingsOf(pdekit::PrintDialogCallback *callback)
{
    pdekit::PrintSession *session = callback ? callback->printSession() : nullptr;
    if (!session)
        return nullptr;
    pdekit::PrintTicket *ticket = nullptr;
    const QString type = QString::fromLatin1(pdekit::PMPrintSettingsTicket);
    if (session->PMSessionGetTicketFromSession(type, &ticket) != pdekit::noErr || !ticket)
        return nullptr;
    pdekit::PPDDictionary *settings = nullptr;
    if (ticket->PMTicketGetPPDDict(0, 0, &settings) != pdekit::noErr)
        return nullptr;
    return settings;
}

} // namespace

ppd_file_s *RKTPPRBasePDEcorvel::getPPDOnTiger()
{
    pdekit::PrintSession *session = callback() ? callback()->printSession() : nullptr;
    ppd_file_s *ppd = nullptr;
    if (!session || session->GetPPDRefFromSession(&ppd) != pdekit::noErr)
        return nullptr;
    return ppd;
}

std::optional<QByteArray> RKTPPRBasePDEcorvel::ppdDataCopy()
{
    pdekit::Printer *printer = callback() ? callback()->PMPrinter() : nullptr;
    if (!printer)
        return std::nullopt;
    const std::optional<QUrl> description =
        printer->PMPrinterCopyDescriptionURL(QString::fromLatin1(pdekit::PMPPDDescriptionType));
    return description ? printer->PMCopyPPDData(*description) : std::nullopt;
}

QString RKTPPRBasePDEcorvel::printerDeviceURI()
{
    if (!deviceURI_ && callback() && callback()->PMPrinter()) {
        pdekit::Printer *printer = callback()->PMPrinter();
        if (const auto uri = printer ? printer->PMPrinterCopyDeviceURI() : std::nullopt) {
            const QString text = uri->absolute();
            if (!text.isEmpty())
                deviceURI_ = text;
        }
    }
    return deviceURI_.value_or(QStringLiteral("usb://"));
}

void RKTPPRBasePDEcorvel::setChoiceForKey(const Text &choice, const Text &key)
{
    if (!choiceDict_) {
        choiceDict_.emplace();
        choiceDict_->reserve(supportedPPDOptionKeys().size());
    }
    if (choice && key)
        choiceDict_->insert(*key, *choice);
}

void RKTPPRBasePDEcorvel::usePPDSettingsFromPrintSettingsOnTiger(bool write)
{
    pdekit::PPDDictionary *settings = printSettingsOf(callback());
    if (!settings)
        return;
    if (write) {
        if (choiceDict_) {
            for (auto entry = choiceDict_->cbegin(); entry != choiceDict_->cend(); ++entry)
                settings->insert(entry.key(), entry.value());
        }
        return;
    }
    if (!choiceDict_)
        choiceDict_.emplace();
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        const auto entry = std::as_const(*settings).constFind(key);
        if (entry != settings->cend())
            choiceDict_->insert(key, *entry);
        else
            choiceDict_->remove(key);
    }
}

void RKTPPRBasePDEcorvel::getPPDSettingsFromPrintSettingsOnTiger()
{
    usePPDSettingsFromPrintSettingsOnTiger(false);
}

void RKTPPRBasePDEcorvel::writePPDSettingsToPrintSettingsOnTiger()
{
    usePPDSettingsFromPrintSettingsOnTiger(true);
}
