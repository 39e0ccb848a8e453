// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintPortal.h"
#include "OpenedDialog.h"
#include "PdfSamples.h"
#include "PrivateBus.h"
#include "PrivateCupsd.h"
#include "QueueSettings.h"
#include "Rows.h"
#include "SystemLog.h"
#include "TestMain.h"

#include <QtCore/QStandardPaths>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusUnixFileDescriptor>
#include <QtTest/QSignalSpy>

using namespace testing_support;
using namespace std::chrono_literals;

namespace {

const QString objectPath = u"/org/freedesktop/portal/desktop"_s;
/// Two pages of A4.
QByteArray letterPdf()
{
    const pdf_samples::Page page{pdf_samples::marks(), "/MediaBox [0 0 595 842]"};
    return pdf_samples::withPages({page, page});
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<PrintDialog *> dialogs()
{
    QList<PrintDialog *> found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<PrintDialog *>(window);
        if (dialog && dialog->isVisible())
            found += dialog;
    }
    return found;
}

} // namespace

/// A desktop's notifications, which read markup.
class Notifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit Notifications(const QString &address)
        : bus_(QDBusConnection::connectToBus(address, u"notifications"_s))
    {
        bus_.registerObject(u"/org/freedesktop/Notifications"_s, this, QDBusConnection::ExportAllSlots);
        bus_.registerService(u"org.freedesktop.Notifications"_s);
    }
    ~Notifications() override { QDBusConnection::disconnectFromBus(u"notifications"_s); }

    QStringList shown; ///< summary and body

public Q_SLOTS:
    QStringList GetCapabilities() { return {u"body"_s, u"body-markup"_s}; }
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &, const QVariantMap &, int)
    {
        shown += summary + u'\n' + body;
        return 1;
    }

private:
    QDBusConnection bus_;
};

/// The portal on a bus of its own, called as its front end does.
class PrintPortalTest : public WindowTest
{
    Q_OBJECT

private:
    using Reply = QDBusPendingReply<uint, QVariantMap>;

    std::unique_ptr<PrivateBus> daemon_;
    QString address_;
    QDBusConnection frontEnd_{QString()};
    std::unique_ptr<PrintPortal> portal_;
    std::unique_ptr<QTemporaryDir> home_;
    QStringList log_;
    int calls_ = 0;

    static QString nameOf(int call) { return objectPath + u"/request/1_1/t%1"_s.arg(call); }

    Reply call(const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(PrintPortal::busName(), objectPath,
                                                              u"org.freedesktop.impl.portal.Print"_s, method);
        message.setArguments(QVariantList{QVariant::fromValue(QDBusObjectPath(nameOf(++calls_)))} +
                             arguments);
        return frontEnd_.asyncCall(message);
    }
    Reply prepare(const QVariantMap &settings = {}, const QString &program = u"org.example.Viewer"_s,
                  const QVariantMap &options = {})
    {
        return call(u"PreparePrint"_s, {program, u""_s, u"Letter"_s, settings, QVariantMap(), options});
    }
    Reply print(uint token, const QString &program = u"org.example.Viewer"_s,
                const QByteArray &content = letterPdf())
    {
        QFile file(home_->filePath(u"document"_s));
        if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate) || file.write(content) != content.size() ||
            !file.flush())
            qFatal("no document");
        return call(u"Print"_s,
                    {program, u""_s, u"Print"_s, QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())),
                     QVariantMap{{u"token"_s, token}}});
    }
    Reply closeCall(int number)
    {
        return frontEnd_.asyncCall(QDBusMessage::createMethodCall(
            PrintPortal::busName(), nameOf(number), u"org.freedesktop.impl.portal.Request"_s, u"Close"_s));
    }
    static bool isAnswered(const Reply &reply, uint response)
    {
        return QTest::qWaitFor([&reply] { return reply.isFinished(); }, 10000) && !reply.isError() &&
               reply.argumentAt<0>() == response;
    }
    static PrintDialog *onlyDialog()
    {
        const bool isThere =
            QTest::qWaitFor([] { return dialogs().size() == 1 && dialogs().at(0)->isReady(); });
        return isThere ? dialogs().at(0) : nullptr;
    }
    static QPushButton *button(PrintDialog *dialog) { return dialog->findChild<QPushButton *>(u"print"_s); }
    static QVariantMap settingsIn(const Reply &reply)
    {
        return qdbus_cast<QVariantMap>(reply.argumentAt<1>().value(u"settings"_s));
    }
    static uint tokenIn(const Reply &reply) { return reply.argumentAt<1>().value(u"token"_s).toUInt(); }

    /// By the built-in printer.
    static QStringList printedFiles()
    {
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u"/Prints"_s);
        QStringList paths;
        for (const QString &name : folder.entryList({u"*.pdf"_s}, QDir::Files))
            paths += folder.filePath(name);
        return paths;
    }
    /// There is no notification service.
    static void closeNotice()
    {
        QWidget *notice = nullptr;
        QVERIFY(QTest::qWaitFor([&notice] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            for (QWidget *window : windows)
                notice = window->objectName() == u"notice"_s && window->isVisible() ? window : notice;
            return notice != nullptr;
        }));
        notice->close();
    }

    void open(PrintPortal::Settings settings = {})
    {
        settings.intake.quiet = 500ms;
        portal_ =
            std::make_unique<PrintPortal>(QDBusConnection::connectToBus(address_, u"back end"_s), settings);
        QCOMPARE(portal_->start(), QString());
    }

private Q_SLOTS:
    void initTestCase()
    {
        daemon_ = std::make_unique<PrivateBus>();
        address_ = daemon_->start();
        if (address_.isEmpty())
            QSKIP("dbus-daemon is missing; apt-get install dbus.");
        frontEnd_ = QDBusConnection::connectToBus(address_, u"front end"_s);
        QVERIFY(frontEnd_.isConnected());
    }
    void cleanupTestCase() { QDBusConnection::disconnectFromBus(u"front end"_s); }

    void init()
    {
        WindowTest::init();
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("HOME", QFile::encodeName(home_->path()));
        log_.clear();
        pdekit::setSystemLogSink([this](const QString &line) { log_ += line; });
        calls_ = 0;
        open();
    }
    void cleanup()
    {
        portal_.reset();
        QTRY_VERIFY(dialogs().isEmpty());
        QDBusConnection::disconnectFromBus(u"back end"_s);
        pdekit::setSystemLogSink([](const QString &) {});
    }

    void aDocumentIsPreparedAndPrinted()
    {
        const Reply prepared = prepare({{u"n-copies"_s, u"2"_s}, {u"x-key"_s, u"kept"_s}},
                                       u"org.example.Viewer"_s, {{u"accept_label"_s, u"_Send & go"_s}});
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QVERIFY2(dialog->windowTitle().contains(u"org.example.Viewer: Letter"_s),
                 qPrintable(dialog->windowTitle()));
        QCOMPARE(button(dialog)->text(), u"&Send && go"_s);
        const QString caption = dialog->findChild<QLabel *>(u"photoLabel"_s)->text();
        QVERIFY2(caption.contains(u"\"Send & go\""_s), qPrintable(caption));
        for (const char *name : {"addPhoto", "removePhoto", "photoTable", "documents", "more"})
            QVERIFY2(!dialog->findChild<QWidget *>(QLatin1String(name))->isVisible(), name);
        QCOMPARE(dialog->findChild<QSpinBox *>(u"copies"_s)->value(), 2);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(prepared, 0));
        QCOMPARE(settingsIn(prepared).value(u"n-copies"_s).toString(), u"1"_s);
        QCOMPARE(settingsIn(prepared).value(u"x-key"_s).toString(), u"kept"_s);
        QCOMPARE(settingsIn(prepared).value(u"output-file-format"_s).toString(), u"pdf"_s);
        QVERIFY(tokenIn(prepared) != 0);
        QTRY_VERIFY(dialogs().isEmpty());

        const Reply foreign = print(tokenIn(prepared), u"org.example.Other"_s);
        QVERIFY(isAnswered(foreign, 2));
        const Reply printed = print(tokenIn(prepared));
        QVERIFY(isAnswered(printed, 0));
        QTRY_COMPARE(printedFiles().size(), 1);
        const auto document = Document::open(printedFiles().at(0));
        QVERIFY(document);
        QCOMPARE(document->pageCount(), 2);
        const Reply again = print(tokenIn(prepared));
        QVERIFY(isAnswered(again, 2));
        QCOMPARE(log_.filter(u"token"_s).size(), 2);
    }

    /// What the queue gets is the program's document as it is, and what was chosen here.
    void aQueueGetsTheDocument()
    {
        PrivateCupsd cupsd;
        const QString trouble = cupsd.start();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
        QVERIFY(cupsd.addQueue(u"laser"_s, fileContent(QStringLiteral(CORVEL_LASER_PPD))));
        QVERIFY(cupsd.addQueue(u"odd"_s, fileContent(QStringLiteral(CORVEL_LASER_PPD)))); // which goes away
        const Reply prepared = prepare({{u"printer"_s, u"laser"_s},
                                        {u"n-copies"_s, u"3"_s},
                                        {u"duplex"_s, u"vertical"_s},
                                        {u"cups-TonerSave"_s, u"True"_s}});
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->printer(), u"laser"_s);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(prepared, 0));
        QCOMPARE(settingsIn(prepared).value(u"printer"_s).toString(), u"laser"_s);
        QCOMPARE(settingsIn(prepared).value(u"cups-TonerSave"_s).toString(), u"True"_s);
        QVERIFY(isAnswered(print(tokenIn(prepared)), 0));
        QVERIFY(cupsd.waitForJob(1));
        const RecordedJob job = cupsd.job(1);
        QCOMPARE(job.title, "org.example.Viewer: Letter");
        QCOMPARE(job.copies, "3");
        QCOMPARE(job.document, letterPdf());
        QVERIFY2(job.options.contains("Duplex=DuplexTumble") && job.options.contains("TonerSave"),
                 job.options.constData());

        // A failure is reported to the user, since the program does not hear of it.
        Notifications notifications(address_);
        const Reply other = prepare({{u"printer"_s, u"odd"_s}, {u"number-up"_s, u"2"_s}});
        dialog = onlyDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->printer(), u"odd"_s);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(other, 0));
        QCOMPARE(settingsIn(other).value(u"number-up"_s).toString(), u"1"_s);
        QVERIFY(cupsd.deleteQueue(u"odd"_s));
        QVERIFY(isAnswered(print(tokenIn(other)), 0));
        QTRY_COMPARE(notifications.shown.size(), 1);
        QVERIFY2(notifications.shown.at(0).contains(u"org.example.Viewer: Letter"_s) &&
                     notifications.shown.at(0).contains(u"&quot;odd&quot;"_s),
                 qPrintable(notifications.shown.at(0)));
    }

    void theUserCancelsAndTheCallerCloses()
    {
        const Reply canceled = prepare();
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(isAnswered(canceled, 1));
        QTRY_VERIFY(dialogs().isEmpty());

        const Reply closed = prepare();
        QVERIFY(onlyDialog());
        // Nobody else can close it.
        auto stranger = QDBusConnection::connectToBus(address_, u"stranger"_s);
        stranger.call(QDBusMessage::createMethodCall(PrintPortal::busName(), nameOf(calls_),
                                                     u"org.freedesktop.impl.portal.Request"_s, u"Close"_s),
                      QDBus::BlockWithGui);
        QVERIFY(!closed.isFinished());
        QDBusConnection::disconnectFromBus(u"stranger"_s);
        closeCall(calls_);
        QVERIFY(isAnswered(closed, 1));
        QTRY_VERIFY(dialogs().isEmpty());
    }

    void twoAreAnsweredInTheOtherOrder()
    {
        const Reply first = prepare({{u"n-copies"_s, u"2"_s}});
        PrintDialog *one = onlyDialog();
        QVERIFY(one);
        const Reply second = prepare({{u"n-copies"_s, u"3"_s}}, u"org.example.Other"_s);
        QTRY_COMPARE(dialogs().size(), 2);
        PrintDialog *other = dialogs().at(dialogs().at(0) == one ? 1 : 0);
        QTRY_VERIFY(other->isReady());
        QTest::keyClick(button(other), Qt::Key_Space);
        QVERIFY(isAnswered(second, 0));
        QVERIFY(!first.isFinished());
        QTest::keyClick(button(one), Qt::Key_Space);
        QVERIFY(isAnswered(first, 0));
        QVERIFY(tokenIn(first) != tokenIn(second));
    }

    void aFinishedDocumentIsShownFirst()
    {
        const Reply printed = print(0);
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QVERIFY(!printed.isFinished());
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(printed, 0));
    }

    void whatCannotBeServedIsAnsweredAsFailed()
    {
        const Reply unreadable = print(0, u"org.example.Viewer"_s, "Dear all,");
        QVERIFY(isAnswered(unreadable, 2));
        closeNotice();
        const Reply vector = prepare({}, u"org.example.Viewer"_s,
                                     {{u"supported_output_file_formats"_s, QStringList{u"svg"_s}}});
        QVERIFY(isAnswered(vector, 2));
        const Reply open = prepare();
        QVERIFY(onlyDialog());
        --calls_; // the same handle
        QVERIFY(isAnswered(prepare(), 2));
        QVERIFY(!open.isFinished());
    }

    /// Several pages on a sheet are the dialog's work, or the program's: never both.
    void pagesAreArrangedOnce_data()
    {
        using Row = std::tuple<const char *, QVariantMap, QString, QVariantMap, int>;
        const auto upTo = [](const QString &order) {
            QVariantMap settings = {{u"number-up"_s, u"2"_s}, {u"reverse"_s, u"true"_s}};
            if (!order.isEmpty())
                settings.insert(u"number-up-layout"_s, order);
            return settings;
        };
        addRows<QVariantMap, QString, QVariantMap, int>({
            Row{"by the dialog", upTo({}), u""_s, {{u"number-up"_s, u"1"_s}, {u"reverse"_s, u"false"_s}}, 1},
            Row{"in reading order", upTo(u"lrtb"_s), u""_s, {{u"number-up"_s, u"1"_s}}, 1},
            Row{"in an order of the program's",
                upTo(u"tblr"_s),
                u""_s,
                {{u"number-up"_s, u"2"_s}, {u"reverse"_s, u"true"_s}},
                2},
            Row{"in the other order, chosen here",
                upTo(u"tblr"_s),
                u"reversePages"_s,
                {{u"number-up"_s, u"2"_s}, {u"reverse"_s, u"false"_s}},
                2},
            Row{"scaled", {{u"scale"_s, u"50"_s}}, u""_s, {{u"scale"_s, u"100"_s}}, 2},
        });
    }
    void pagesAreArrangedOnce()
    {
        const auto [settings, switched, answered, sides] = row<QVariantMap, QString, QVariantMap, int>();
        const Reply prepared = prepare(settings);
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        if (!switched.isEmpty())
            QTest::keyClick(dialog->findChild<QWidget *>(switched), Qt::Key_Space);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(prepared, 0));
        for (auto entry = answered.cbegin(); entry != answered.cend(); ++entry)
            QCOMPARE(settingsIn(prepared).value(entry.key()), *entry);
        QVERIFY(isAnswered(print(tokenIn(prepared)), 0));
        QTRY_COMPARE(printedFiles().size(), 1);
        const auto document = Document::open(printedFiles().at(0));
        QVERIFY(document);
        QCOMPARE(document->pageCount(), sides);
        // What photos are arranged like stays what it was.
        QVERIFY(!QueueSettings::load(Destination::builtIn().queue).contains(u"corvel-layout"_s));
    }

    void aBlockedDocumentIsGivenUpWithItsCall()
    {
        auto pipe = pdekit::Pipe::make();
        const Reply blocked =
            call(u"Print"_s,
                 {u"org.example.Viewer"_s, u""_s, u"Print"_s,
                  QVariant::fromValue(QDBusUnixFileDescriptor(pipe->reading.number())), QVariantMap()});
        closeCall(calls_);
        QVERIFY(isAnswered(blocked, 1));
        const Reply stuck =
            call(u"Print"_s,
                 {u"org.example.Viewer"_s, u""_s, u"Print"_s,
                  QVariant::fromValue(QDBusUnixFileDescriptor(pipe->reading.number())), QVariantMap()});
        QVERIFY(isAnswered(stuck, 2));
        QTRY_COMPARE(log_.filter(u"stopped sending"_s).size(), 1);
        closeNotice();
    }

    void onlySoManyAreServedAtOnce()
    {
        auto pipe = pdekit::Pipe::make();
        QList<Reply> open;
        for (qsizetype i = 0; i < PrintPortal::mostCalls; ++i)
            open += call(u"Print"_s, {u"org.example.Viewer"_s, u""_s, u"Print"_s,
                                      QVariant::fromValue(QDBusUnixFileDescriptor(pipe->reading.number())),
                                      QVariantMap()});
        QVERIFY(isAnswered(prepare(), 2));
        for (int number = 1; number <= PrintPortal::mostCalls; ++number)
            closeCall(number);
        for (const Reply &reply : std::as_const(open))
            QVERIFY(isAnswered(reply, 1));
    }

    /// Programs end as soon as they have handed over the document: the user has printed it by then.
    void aPreparedDocumentIsPrintedWithoutItsProgram()
    {
        const Reply prepared = prepare();
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(prepared, 0));
        auto pipe = pdekit::Pipe::make();
        const Reply printed =
            call(u"Print"_s, {u"org.example.Viewer"_s, u""_s, u"Print"_s,
                              QVariant::fromValue(QDBusUnixFileDescriptor(pipe->reading.number())),
                              QVariantMap{{u"token"_s, tokenIn(prepared)}}});
        closeCall(calls_);
        QVERIFY(isAnswered(printed, 1));
        const QByteArray content = letterPdf();
        QCOMPARE(::write(pipe->writing.number(), content.constData(), size_t(content.size())),
                 content.size());
        pipe->writing.close();
        QTRY_COMPARE(printedFiles().size(), 1);
    }

    void itEndsWhenItIsIdle()
    {
        portal_.reset();
        QDBusConnection::disconnectFromBus(u"back end"_s);
        PrintPortal::Settings settings;
        settings.idleTime = 50ms;
        open(settings);
        QSignalSpy over(portal_.get(), &PrintPortal::over);
        const Reply canceled = prepare();
        PrintDialog *dialog = onlyDialog();
        QVERIFY(dialog);
        QTest::qWait(150); // longer than the idle time
        QCOMPARE(over.size(), 0);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_COMPARE(over.size(), 1);
        const Reply prepared = prepare();
        dialog = onlyDialog();
        QVERIFY(dialog);
        QTest::keyClick(button(dialog), Qt::Key_Space);
        QVERIFY(isAnswered(prepared, 0));
        QTest::qWait(150);
        QCOMPARE(over.size(), 1); // its document may still come
    }

    /// As the bus starts it.
    void theProgramServesAndEnds()
    {
        portal_.reset();
        QDBusConnection::disconnectFromBus(u"back end"_s);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address_);
        const auto start = [&environment](QProcess &process, const QStringList &arguments) {
            process.setProcessEnvironment(environment);
            process.start(QStringLiteral(CORVEL_PORTAL_PROGRAM), arguments);
        };
        const auto isServed = [this] {
            return frontEnd_.interface()->isServiceRegistered(PrintPortal::busName()).value();
        };
        QTRY_VERIFY(!isServed());
        QProcess first;
        start(first, {});
        QTRY_VERIFY(isServed());
        const auto introspect = [this](const QString &path) {
            return QDBusPendingReply<QString>(frontEnd_.asyncCall(QDBusMessage::createMethodCall(
                PrintPortal::busName(), path, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s)));
        };
        const QDBusPendingReply<QString> description = introspect(objectPath);
        QTRY_VERIFY(description.isFinished());
        QVERIFY2(description.value().contains(u"PreparePrint"_s), qPrintable(description.value()));
        const Reply closed = prepare();
        closeCall(calls_);
        QVERIFY(isAnswered(closed, 1));

        QProcess second;
        start(second, {});
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 1);
        QProcess third;
        start(third, {u"--replace"_s, u"--idle-time"_s, u"0"_s});
        QTRY_COMPARE(first.state(), QProcess::NotRunning);
        QCOMPARE(first.exitCode(), 0);
        QTRY_COMPARE(third.state(), QProcess::NotRunning);
        QCOMPARE(third.exitCode(), 0);
        QVERIFY(!isServed());

        QProcess last;
        start(last, {});
        QTRY_VERIFY(isServed());
        const Reply open = prepare();
        const QDBusPendingReply<QString> handle = introspect(nameOf(calls_)); // behind the call
        QTRY_VERIFY(handle.isFinished() && handle.value().contains(u"Close"_s));
        last.terminate(); // as the desktop does when the user logs out
        QVERIFY(isAnswered(open, 1));
        QTRY_COMPARE(last.state(), QProcess::NotRunning);
        QCOMPARE(last.exitStatus(), QProcess::NormalExit);
        QCOMPARE(last.exitCode(), 0);
    }

    void theProgramEndsWithItsBus()
    {
        auto bus = std::make_unique<PrivateBus>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus->start());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(CORVEL_PORTAL_PROGRAM), {});
        auto client =
            QDBusConnection::connectToBus(environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s), u"short"_s);
        QTRY_VERIFY(client.interface()->isServiceRegistered(PrintPortal::busName()).value());
        QDBusConnection::disconnectFromBus(u"short"_s);
        bus.reset();
        QTRY_COMPARE(program.state(), QProcess::NotRunning);
        QCOMPARE(program.exitCode(), 0);
    }
};

CORVEL_WIDGETS_TEST(PrintPortalTest)
#include "PrintPortalTest.moc"
