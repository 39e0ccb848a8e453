// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// What programs ask for through the desktop's print portal, for an office printer. Each line is an entry of a
// dictionary, "s" or "p" for settings or page setup, then "t" or "n" for a text or a number: "st n-copies=2".

#include "DialogSession.h"
#include "Fuzzing.h"
#include "PlainText.h"
#include "PortalAnswer.h"
#include "PortalChoices.h"
#include "PortalSettings.h"
#include "PpdCheck.h"
#include "ProgramName.h"
#include "SessionJob.h"
#include "SessionOpening.h"

#include <QtCore/QFile>

using namespace printdialog;

namespace {

struct Dictionaries
{
    QVariantMap settings;
    QVariantMap pageSetup;

    explicit Dictionaries(const QByteArray &content)
    {
        for (const QByteArray &line : content.split('\n')) {
            constexpr qsizetype prefix = 3;
            const QString text = QString::fromUtf8(line.mid(prefix));
            const QString key = text.section(u'=', 0, 0);
            const QString value = text.section(u'=', 1);
            QVariantMap &target = line.startsWith('p') ? pageSetup : settings;
            target.insert(key, line.size() > 1 && line.at(1) == 'n' ? QVariant(value.toDouble())
                                                                    : QVariant(value));
        }
    }
};

DialogSession &laser()
{
    static const auto session = [] {
        QFile file(QStringLiteral(CORVEL_LASER_PPD));
        fuzzing::require(file.open(QIODevice::ReadOnly), "the PPD can be read");
        const QString name = QStringLiteral("laser");
        const auto ppd = trustPpd(file.readAll(), name);
        fuzzing::require(bool(ppd), "the PPD can be opened");
        Queue queue;
        queue.name = name;
        auto opened = openQueue(queue, *ppd, PanelMode::Constraint);
        fuzzing::require(bool(opened), "the printer can be opened");
        return *std::move(opened);
    }();
    return *session;
}

void isPlain(const QVariantMap &dictionary)
{
    for (const QVariant &value : dictionary)
        fuzzing::require(value.typeId() != QMetaType::QString || !hasControls(value.toString()),
                         "nothing that is answered has control characters");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content = fuzzing::input(data, size);
    const Dictionaries asked(content);
    const auto settings = PortalSettings::read(asked.settings, asked.pageSetup);
    fuzzing::require(settings.entries().size() <= PortalSettings::mostEntries, "settings are limited");
    DialogSession &session = laser();
    const ProgramChoices wishes = portalChoices(settings, session.options());
    for (const auto &[key, choice] : wishes.options)
        session.choose(key, choice);
    for (const QString &remark : settings.remarks() + wishes.remarks)
        fuzzing::require(!hasControls(remark), "what is shown has no control characters");
    const QString name =
        documentName(programName(QString::fromUtf8(content.left(80))), QString::fromUtf8(content));
    fuzzing::require(!name.isEmpty() && name.size() <= 200 && !hasControls(name),
                     "a document has a short name");
    fuzzing::require(!hasControls(buttonText(QString::fromUtf8(content))), "a button's text is plain");
    const auto job = jobOf(session, settings.copies().value_or(1));
    if (!job)
        return 0; // choices conflict
    const PortalAnswer answer =
        portalAnswer(settings, job->job, session.options(), settings.pages(), PagesBy::Dialog);
    isPlain(answer.settings);
    isPlain(answer.pageSetup);
    const auto again = PortalSettings::read(answer.settings, answer.pageSetup);
    const PortalAnswer same =
        portalAnswer(again, job->job, session.options(), again.pages(), PagesBy::Dialog);
    fuzzing::require(same.settings == answer.settings || !again.remarks().isEmpty(),
                     "what is sent back is answered the same");
    return 0;
}
