// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ScreenProfiles.h"
#include "PhotoPane.h"
#include "PreviewWidget.h"
#include "PrivateDesktop.h"
#include "Rows.h"
#include "SampleProfiles.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>
#include <QtDBus/QDBusVirtualObject>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <memory>
#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

/// The display as another program that changes it.
class XDisplay
{
public:
    XDisplay()
        : x_(xcb_connect(nullptr, nullptr))
        , root_(xcb_setup_roots_iterator(xcb_get_setup(x_)).data->root)
    {
    }
    ~XDisplay() { xcb_disconnect(x_); }
    Q_DISABLE_COPY_MOVE(XDisplay)

    /// Two monitors beside each other.
    void split()
    {
        using Resources = xcb_randr_get_screen_resources_current_reply_t;
        const std::unique_ptr<Resources, decltype(&std::free)> resources(
            xcb_randr_get_screen_resources_current_reply(
                x_, xcb_randr_get_screen_resources_current(x_, root_), nullptr),
            std::free);
        struct
        {
            xcb_randr_set_monitor_request_t request = {};
            xcb_randr_monitor_info_t info = {};
            xcb_randr_output_t output = 0;
        } message;
        message.request.window = root_;
        message.info.width = 800;
        message.info.height = 600;
        message.info.width_in_millimeters = 400;
        message.info.height_in_millimeters = 300;
        for (const char *name : {"left", "right"}) {
            message.info.name = atom(name);
            message.info.nOutput = message.info.x == 0 ? 1 : 0;
            message.output = xcb_randr_get_screen_resources_current_outputs(resources.get())[0];
            // xcb_randr_set_monitor() of libxcb 1.15 sends a wrong length.
            std::array<iovec, 3> parts = {};
            parts[2] = {&message, sizeof message - (message.info.x == 0 ? 0 : sizeof message.output)};
            const xcb_protocol_request_t request = {1, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
            xcb_send_request(x_, 0, &parts[2], &request);
            message.info.x = 800;
        }
        atom("done"); // waits for the server
    }

    void set(const char *property, const QByteArray &value)
    {
        const xcb_atom_t name = atom(property);
        xcb_delete_property(x_, root_, name);
        constexpr qsizetype most = 65536; // of a request
        for (qsizetype done = 0; done < value.size(); done += most)
            xcb_change_property(x_, XCB_PROP_MODE_APPEND, root_, name, XCB_ATOM_CARDINAL, 8,
                                static_cast<uint32_t>(std::min(most, value.size() - done)),
                                value.constData() + done);
        atom("done");
    }

private:
    xcb_atom_t atom(const char *name)
    {
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(x_, xcb_intern_atom(x_, 0, static_cast<uint16_t>(qstrlen(name)), name),
                                  nullptr),
            std::free);
        return reply->atom;
    }

    xcb_connection_t *x_;
    xcb_window_t root_;
};

/// colord, as far as it is asked, with the interface that Debian's package of it describes.
class Colord : public QDBusVirtualObject
{
public:
    QString screen;
    QStringList files;
    bool isEnabled = true;

    QString introspect(const QString & /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        const QVariantList arguments = message.arguments();
        const QString what = arguments.value(0).toString() + u' ' + arguments.value(1).toString();
        const auto answer = [&](const QVariant &value) {
            return bus.send(message.createReply(value));
        };
        const auto path = [](const QString &name) {
            return QDBusObjectPath(u"/org/freedesktop/ColorManager/"_s + name);
        };
        const auto property = [&](const QVariant &value) {
            return answer(QVariant::fromValue(QDBusVariant(value)));
        };
        if (message.member() == u"FindDeviceByProperty" && what == u"XRANDR_name "_s + screen)
            return answer(QVariant::fromValue(path(u"devices/screen"_s)));
        if (message.member() != u"Get")
            return bus.send(message.createErrorReply(u"org.freedesktop.ColorManager.Failed"_s, what));
        if (what == u"org.freedesktop.ColorManager.Device Enabled")
            return property(isEnabled);
        if (what == u"org.freedesktop.ColorManager.Profile Filename")
            return property(files.value(message.path().right(1).toInt()));
        QList<QDBusObjectPath> profiles;
        for (qsizetype i = 0; i < files.size(); ++i)
            profiles += path(u"profiles/%1"_s.arg(i));
        return property(QVariant::fromValue(profiles));
    }
};

/// On a private display and bus, with two monitors of twice the usual density.
class ScreenProfilesTest : public QObject
{
    Q_OBJECT

public:
    explicit ScreenProfilesTest(const QString &missing)
        : missing_(missing)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!missing_.isEmpty())
            QSKIP(qPrintable(missing_));
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.filePath(u"home"_s)));
        qputenv("XDG_DATA_DIRS", QFile::encodeName(folder_.filePath(u"system"_s)));
        const QList<QScreen *> screens = QGuiApplication::screens();
        QCOMPARE(screens.size(), 2);
        left_ = screens.at(screens.at(0)->geometry().x() == 0 ? 0 : 1);
        right_ = screens.at(screens.at(0)->geometry().x() == 0 ? 1 : 0);
        QCOMPARE(left_->devicePixelRatio(), 2);
        QVERIFY(bus_.isConnected());
        bus_.registerVirtualObject(u"/org/freedesktop/ColorManager"_s, &colord_, QDBusConnection::SubPath);
        QVERIFY(bus_.registerService(u"org.freedesktop.ColorManager"_s));
    }

    void init()
    {
        colord_.screen = right_->name();
        colord_.files = {folder_.filePath(u"home/icc/screen.icc"_s),
                         folder_.filePath(u"home/icc/other.icc"_s)};
        colord_.isEnabled = true;
    }

    void cleanup()
    {
        if (!missing_.isEmpty())
            return;
        for (const char *property : {"_ICC_PROFILE", "_ICC_PROFILE_1"})
            display_->set(property, {});
    }

    void readsTheXServers()
    {
        ScreenProfiles profiles;
        QCOMPARE(profiles.profileOf(left_), QByteArray());
        const QByteArray left = profile(1.8);
        const QByteArray right = profile(2.4);
        display_->set("_ICC_PROFILE", left);
        QCOMPARE(profiles.profileOf(left_), left);
        QCOMPARE(profiles.profileOf(right_), QByteArray());
        display_->set("_ICC_PROFILE_1", right);
        QCOMPARE(profiles.profileOf(left_), left);
        QCOMPARE(profiles.profileOf(right_), right);
        display_->set("_ICC_PROFILE", right);
        QCOMPARE(profiles.profileOf(left_), right);
        for (const QByteArray &bad : {QByteArray("text"), right + QByteArray(4 << 20, '\0')}) {
            display_->set("_ICC_PROFILE", bad);
            QCOMPARE(profiles.profileOf(left_), QByteArray());
        }
    }

    void asksTheColorManager()
    {
        const QByteArray bytes = profile(2);
        QVERIFY(storeBelow(colord_.files.constFirst(), bytes));
        ScreenProfiles profiles;
        const QSignalSpy changed(&profiles, &ScreenProfiles::changed);
        QCOMPARE(profiles.profileOf(left_), QByteArray()); // of which it does not know
        QCOMPARE(profiles.profileOf(right_), QByteArray());
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(profiles.profileOf(left_), QByteArray());
        QCOMPARE(profiles.profileOf(right_), bytes);
        // Its own word counts for less than the X server's.
        const QByteArray other = profile(1.5);
        display_->set("_ICC_PROFILE_1", other);
        QCOMPARE(profiles.profileOf(right_), other);
    }

    // A window, also one that is moved to another screen.
    void photosHaveTheColorsOfTheirScreen()
    {
        constexpr int tone = 128;
        constexpr int linear = 55; // what the screen needs for it, whose values are proportional to light
        QImage grey(60, 40, QImage::Format_RGB32);
        grey.fill(qRgb(tone, tone, tone));
        const QString path = folder_.filePath(u"grey.png"_s);
        QVERIFY(grey.save(path));
        display_->set("_ICC_PROFILE", profile(1));
        PhotoPane pane;
        pane.setPage({QSizeF(300, 200), QRectF(0, 0, 300, 200)});
        pane.setPhotos({*Photo::open(path)}, {});
        pane.setGeometry({left_->geometry().topLeft(), QSize(300, 280)});
        pane.setVisible(true);
        auto *preview = pane.findChild<PreviewWidget *>();
        const auto shown = [&] {
            const QPoint middle = preview->pageToWidget().map(QPointF(150, 100)).toPoint();
            return qGreen(preview->grab({middle, QSize(1, 1)}).toImage().pixel(0, 0));
        };
        QTRY_VERIFY2(std::abs(shown() - linear) <= 2, qPrintable(QString::number(shown())));
        pane.move(right_->geometry().topLeft());
        QTRY_COMPARE(shown(), tone);
        preview->setDotsPerInch(144); // a pixel of the screen, not of the desktop, for each dot
        preview->zoomTo(PreviewWidget::dotForDot);
        QCOMPARE(PagePainter::photoPixels(preview->view()), QSize(600, 400));
    }

    void programFindsTheProfile_data()
    {
        // What is changed; whether the first profile is found.
        const auto add = rows<std::function<void(Colord &)>, bool>();
        add(
            "default", [](Colord &) {}, true);
        add(
            "another screen", [](Colord &colord) { colord.screen = u"other"_s; }, false);
        add(
            "without a profile", [](Colord &colord) { colord.files.clear(); }, false);
        add(
            "turned off", [](Colord &colord) { colord.isEnabled = false; }, false);
    }

    void programFindsTheProfile()
    {
        const auto [change, isFound] = row<std::function<void(Colord &)>, bool>();
        change(colord_);
        QProcess program;
        program.start(screenProfileProgram(), {right_->name()});
        QTRY_COMPARE(program.state(), QProcess::NotRunning); // it asks this process
        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(QFile::decodeName(program.readAllStandardOutput()),
                 isFound ? colord_.files.constFirst() : QString());
    }

    // A bus that hangs.
    void givesUp_data() { addRows<bool>({{"after a while", false}, {"with the window", true}}); }

    void givesUp()
    {
        const auto [isClosed] = row<bool>();
        const QString pidFile = folder_.filePath(u"pid"_s);
        const QString program = folder_.filePath(u"program"_s);
        QVERIFY(
            storeBelow(program, "#!/bin/sh\necho $$ >'" + QFile::encodeName(pidFile) + "'\nexec sleep 60\n"));
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        const auto remove = qScopeGuard([&] { QFile::remove(program) && QFile::remove(pidFile); });
        auto profiles = std::make_unique<ScreenProfiles>(program);
        QElapsedTimer timer;
        timer.start();
        profiles->profileOf(left_);
        QVERIFY(timer.elapsed() < 500);
        pid_t pid = 0;
        const auto isStarted = [&] {
            QFile file(pidFile);
            pid = file.open(QFile::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
            return pid > 0;
        };
        QTRY_VERIFY(isStarted());
        QVERIFY(timer.elapsed() >= 450); // the window has opened; timers may be early
        if (isClosed)
            profiles.reset();
        QTRY_VERIFY(kill(pid, 0) < 0 && errno == ESRCH); // and was reaped
        QCOMPARE(timer.elapsed() < 2200, isClosed);
    }

private:
    QString missing_;
    QTemporaryDir folder_;
    std::unique_ptr<XDisplay> display_ = missing_.isEmpty() ? std::make_unique<XDisplay>() : nullptr;
    QScreen *left_ = nullptr;
    QScreen *right_ = nullptr;
    Colord colord_;
    QDBusConnection bus_ =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), u"colord"_s);
};

int main(int argc, char *argv[])
{
    PrivateDesktop desktop;
    const QString missing = desktop.start({u"-noreset"_s, u"-screen"_s, u"0"_s, u"1600x600x24"_s});
    if (missing.isEmpty()) {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS"));
        qputenv("QT_SCALE_FACTOR", "2");
        XDisplay().split();
    }
    QApplication application(argc, argv);
    ScreenProfilesTest test(missing);
    return QTest::qExec(&test, argc, argv);
}

#include "ScreenProfilesTest.moc"
