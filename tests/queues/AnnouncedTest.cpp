// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AnnouncedPrinters.h"
#include "PrinterFinder.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cerrno>
#include <csignal>

using namespace printdialog;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// A line of the lister, with ' in place of ".
QByteArray line(QByteArray json)
{
    return json.replace('\'', '"') + '\n';
}

/// `changes` are further members, which replace those of the same name.
QByteArray foundLine(const QByteArray &name, const QByteArray &changes = {})
{
    return line("{'event':'found','name':'" + name +
                "','type':'_ipp._tcp','domain':'local','host':'photo.local','address':'192.0.2.7','port':631,"
                "'path':'ipp/print','uuid':'01234567-89ab-CDEF-0123-456789abcdef'" +
                (changes.isEmpty() ? QByteArray() : ',' + changes) + '}');
}

AnnouncedServices servicesIn(const QByteArray &lines)
{
    AnnouncedServices services;
    const QList<Announcement> announcements = AnnouncementReader().read(lines);
    for (const Announcement &announcement : announcements)
        services.apply(announcement);
    return services;
}

} // namespace

/// What strangers announce on the network, by a lister that says what it likes.
class AnnouncedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queueNames_data()
    {
        // As lpstat -e shows them.
        addRows<QString, QString>({
            {"plain", u"Foto Eins"_s, u"Foto_Eins"_s},
            {"runs", u"Büro  Drucker (2. OG)"_s, u"B_ro_Drucker_2_OG"_s},
            {"ends", u"_x_"_s, u"_x"_s},
            {"first", u"(Foto)"_s, u"_Foto"_s},
            {"nothing left", u"写真"_s, u"_"_s},
            {"separators", u"a/b\\c"_s, u"a_b_c"_s},
            {"host", u"Foto Eins @ host"_s, u"Foto_Eins_host"_s},
        });
    }

    void queueNames()
    {
        const auto [service, queue] = row<QString, QString>();
        QCOMPARE(queueNameOf(service), queue);
    }

    void unfitLines_data()
    {
        const auto add = rows<QByteArray>();
        add("no JSON", "found everything\n");
        add("other event", line("{'event':'formatted'}"));
        add("nested", QByteArray(2000, '[') + '\n');
        add("no name", foundLine(""));
        add("control character", foundLine("a\\u0007b"));
        add("writing direction", foundLine("a\\u202eb"));
        add("long name", foundLine(QByteArray(64, 'x')));
        add("other type", foundLine("a", "'type':'_ssh._tcp'"));
        add("host's name as address", foundLine("a", "'address':'photo.local'"));
        add("address with a path", foundLine("a", "'address':'192.0.2.7/x'"));
        add("interface with a path", foundLine("a", "'address':'fe80::1%eth0/x'"));
        add("port 0", foundLine("a", "'port':0"));
        add("large port", foundLine("a", "'port':65536"));
        add("path with a line break", foundLine("a", "'path':'ipp\\nDeviceURI file:///etc/x'"));
        add("path with a query", foundLine("a", "'path':'ipp?x=y'"));
        add("long path", foundLine("a", "'path':'" + QByteArray(128, 'x') + '\''));
        add("long line", foundLine("a", "'model':'" + QByteArray(8 << 20, 'x') + '\''));
    }

    // Nor do they spoil the next one.
    void unfitLines()
    {
        const auto [unfit] = row<QByteArray>();
        const QStringList names = servicesIn(unfit + foundLine("Photo corner")).names();
        QCOMPARE(names, QStringList(u"Photo_corner"_s));
    }

    void linesInPieces()
    {
        AnnouncementReader reader;
        const QByteArray lines = foundLine("one") + foundLine("two", "'address':'fe80::1%wlp2s0.1'");
        AnnouncedServices services;
        for (const char byte : lines) {
            const QList<Announcement> announcements = reader.read(QByteArray(1, byte));
            for (const Announcement &announcement : announcements)
                services.apply(announcement);
        }
        QCOMPARE(services.names(), QStringList({u"one"_s, u"two"_s}));
        QCOMPARE(services.printer(u"one"_s)->queue.deviceUri, u"ipp://192.0.2.7:631/ipp/print"_s);
        QCOMPARE(services.printer(u"two"_s)->queue.deviceUri, u"ipp://[v1.fe80::1+wlp2s0.1]:631/ipp/print"_s);
    }

    void tooManyPrinters()
    {
        QByteArray lines;
        for (int i = 0; i < 1000; ++i) {
            lines += foundLine("p" + QByteArray::number(i));
            lines += foundLine("p0", "'domain':'d" + QByteArray::number(i) + '\'');
        }
        QCOMPARE(servicesIn(lines).names().size(), AnnouncedServices::mostPrinters);
    }

    void encryptedService_data()
    {
        const QByteArray encrypted = "'type':'_ipps._tcp','port':443";
        addRows<QByteArray, QString>({
            {"of the same host", encrypted, u"ipps://192.0.2.7:443/ipp/print"_s},
            {"of another", encrypted + ",'host':'evil.local'", u"ipp://192.0.2.7:631/ipp/print"_s},
            {"of another domain", encrypted + ",'domain':'example.com'", u"ipp://192.0.2.7:631/ipp/print"_s},
        });
    }

    void encryptedService()
    {
        const auto [changes, uri] = row<QByteArray, QString>();
        AnnouncedServices services = servicesIn(foundLine("a") + foundLine("a", changes));
        QCOMPARE(services.names(), QStringList(u"a"_s));
        QCOMPARE(services.printer(u"a"_s)->queue.deviceUri, uri);
        // It stays as long as one of its services, and what an interruption did not bring back goes.
        services.apply(AnnouncementReader()
                           .read(line("{'event':'gone','name':'a','type':'_ipp._tcp','domain':'local'}"))
                           .value(0));
        QCOMPARE(services.names(), QStringList(u"a"_s));
        services.apply({Announcement::Event::Began, {}});
        QCOMPARE(services.names(), QStringList(u"a"_s));
        services.apply({Announcement::Event::Complete, {}});
        QCOMPARE(services.names(), QStringList());
    }

    void queueOfThePrinter_data()
    {
        const auto add = rows<QString, QString, bool>();
        add("name", u"photo_corner"_s, u"usb://x"_s, true);
        add("service", u"mine"_s, u"dnssd://Photo%20corner._ipps._tcp.local/"_s, true);
        add("service by IPP", u"mine"_s, u"ipp://Photo%20corner._ipp._tcp.local./ipp/print"_s, true);
        add("UUID", u"mine"_s,
            u"dnssd://Old%20name._ipp._tcp.local/?uuid=01234567-89AB-cdef-0123-456789abcdef"_s, true);
        add("host", u"mine"_s, u"ipp://Photo.local/ipp/print"_s, true);
        add("address", u"mine"_s, u"ipp://192.0.2.7:631/ipp/print"_s, true);
        add("other service", u"mine"_s, u"dnssd://Photo._ipp._tcp.local/"_s, false);
        add("other port", u"mine"_s, u"ipp://192.0.2.7:8631/ipp/print"_s, false);
        add("other path", u"mine"_s, u"ipp://192.0.2.7/ipp/print2"_s, false);
        add("no URI", u"mine"_s, QString(), false);
        add("broken URI", u"mine"_s, u"ipp://[::"_s, false);
    }

    void queueOfThePrinter()
    {
        const auto [name, uri, isOne] = row<QString, QString, bool>();
        Queue queue;
        queue.name = name;
        queue.deviceUri = uri;
        const QList<Queue> all = withAnnounced({queue}, servicesIn(foundLine("Photo corner")));
        QCOMPARE(all.size(), isOne ? 1 : 2);
        QCOMPARE(all.constFirst(), queue);
    }

    // A print server announces the queues that it shares.
    void ownQueueThatIsShared()
    {
        Queue queue;
        queue.name = u"photo"_s;
        queue.deviceUri = u"usb://x"_s;
        const QByteArray shared = "'path':'printers/photo','local':";
        QCOMPARE(withAnnounced({queue}, servicesIn(foundLine("P @ here", shared + "true"))).size(), 1);
        QCOMPARE(withAnnounced({queue}, servicesIn(foundLine("P @ there", shared + "false"))).size(), 2);
    }

    void listerThatFloods()
    {
        AnnouncedPrinters printers(lister("echo '" + foundLine("a").trimmed() + "'; yes '{\"event\":'"));
        printers.start();
        QTRY_COMPARE(printers.services().names(), QStringList(u"a"_s));
        QElapsedTimer turn;
        qint64 longest = 0;
        for (int i = 0; i < 100; ++i) {
            turn.start();
            QTest::qWait(1);
            longest = std::max(longest, turn.elapsed());
        }
        QVERIFY2(longest < 250, QByteArray::number(longest).constData());
    }

    void listerThatEnds()
    {
        AnnouncedPrinters printers(
            lister("echo >> " + file("starts") + "; echo '" + foundLine("a").trimmed() + "'; exit 1"),
            nullptr, 1ms);
        const QSignalSpy changed(&printers, &AnnouncedPrinters::changed);
        printers.start();
        QTRY_COMPARE(changed.size(), 4);
        QTest::qWait(500);
        QCOMPARE(content("starts").size(), 4);
        QCOMPARE(printers.services().names(), QStringList(u"a"_s));
    }

    void listerThatHangs()
    {
        auto printers = std::make_unique<AnnouncedPrinters>(
            lister("trap '' INT TERM; echo $$ > " + file("pid") + "; exec sleep 1000"));
        QElapsedTimer timer;
        timer.start();
        printers->start();
        qInfo("started in %.2f ms", static_cast<double>(timer.nsecsElapsed()) / 1e6);
        QVERIFY(timer.elapsed() < 50);
        QTRY_VERIFY(content("pid").toInt() > 0);
        const pid_t pid = content("pid").toInt();
        timer.start();
        printers.reset();
        QVERIFY(timer.elapsed() < 50);
        QTRY_VERIFY(kill(pid, 0) < 0 && errno == ESRCH); // and was reaped
    }

    void listerThatIsMissing()
    {
        AnnouncedPrinters printers(u"/nonexistent/lister"_s);
        const QSignalSpy looked(&printers, &AnnouncedPrinters::lookedOnce);
        printers.start();
        QVERIFY(looked.isEmpty());
        QTRY_COMPARE(looked.size(), 1);
        QCOMPARE(printers.firstLook(), NetworkLook::Unavailable);
    }

private:
    QByteArray file(const char *name) const
    {
        return QFile::encodeName(folder_.filePath(QString::fromLatin1(name)));
    }

    QByteArray content(const char *name) const
    {
        QFile read(QFile::decodeName(file(name)));
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }

    /// A program of shell commands in place of corvel-printer-list.
    QString lister(const QByteArray &commands) const
    {
        QFile script(QFile::decodeName(file("lister")));
        if (!script.open(QIODevice::WriteOnly) || script.write("#!/bin/sh\n" + commands + '\n') < 0 ||
            !script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            qFatal("%s", qPrintable(script.errorString()));
        return script.fileName();
    }

    QTemporaryDir folder_;
};

CORVEL_TEST(AnnouncedTest)
#include "AnnouncedTest.moc"
