// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PrivateDesktop.h"

#include <QtCore/QEventLoop>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidget>

using namespace testing_support;

namespace {

constexpr uint alertRole = 2; // ATSPI_ROLE_ALERT
const QString accessible = u"org.a11y.atspi.Accessible"_s;

/// An object on the accessibility bus.
struct Object
{
    QString service;
    QString path;
};

} // namespace

/// The window as it stands on the accessibility bus of a real desktop, which the offscreen platform lacks.
class AccessibilityTest : public WindowTest
{
    Q_OBJECT

public:
    explicit AccessibilityTest(const QString &missing)
        : missing_(missing)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!missing_.isEmpty())
            QSKIP(qPrintable(missing_));
        const auto call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                         u"org.a11y.Bus"_s, u"GetAddress"_s);
        const QDBusMessage address = QDBusConnection::sessionBus().call(call);
        if (address.type() != QDBusMessage::ReplyMessage)
            QSKIP("There is no accessibility bus; apt-get install at-spi2-core.");
        bus_ = QDBusConnection::connectToBus(address.arguments().value(0).toString(), u"screen reader"_s);
        QVERIFY2(bus_.isConnected(), qPrintable(bus_.lastError().message()));
    }

    void messagesAreAlerts()
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.options = {{u"Nope"_s, u"1"_s}};
        const OpenedDialog opened(setup);
        QTRY_COMPARE(alerts(), QStringList{opened.message()});
        QVERIFY(opened.message().contains(u"Nope"_s));
        // The next one is told as well, although the bar is there already.
        ask({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s}, u"org.a11y.atspi.Registry"_s,
            u"RegisterEvent"_s, {u"Object:StateChanged:Showing"_s});
        bus_.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                     SLOT(note(QDBusMessage)));
        opened.dialog->saveSettings();
        QTRY_COMPARE(alerts(), QStringList{opened.message()});
        const auto isToldAgain = [this, &opened] {
            opened.dialog->saveSettings();
            return told_.contains(alertPath_);
        };
        QTRY_VERIFY(isToldAgain()); // once the platform has heard that somebody listens
    }

    void refusalsAreAlerts()
    {
        const OpenedDialog opened;
        QCOMPARE(alerts(), QStringList());
        opened.dialog->showPage(2);
        opened.click(u"matte"_s);
        QVERIFY(opened.message().contains(u"Matte"_s));
        QTRY_COMPARE(alerts(), QStringList{opened.message()});
    }

    // What stands beside a field.
    void notesAreAlerts()
    {
        const OpenedDialog opened;
        opened.type(81, u"99"_s);
        QTRY_COMPARE(alerts(), QStringList{u"Enter a number from -25 to 25."_s});
        opened.find<QMenu>(u"presetMenu"_s)->actions().at(1)->trigger(); // Save As
        QTRY_COMPARE(alerts(), QStringList());
        opened.click(u"presetAccept"_s);
        QTRY_COMPARE(alerts().size(), 1);
    }

private Q_SLOTS:
    void note(const QDBusMessage &event) { told_ += event.path(); }

private:
    // This program answers itself: nothing here may wait without handling events.
    QVariant ask(const Object &object, const QString &interface, const QString &method,
                 const QVariantList &arguments = {}) const;
    QVariant ask(const Object &object, const QString &method) const
    {
        return ask(object, accessible, method);
    }

    QList<Object> childrenOf(const Object &object) const
    {
        QList<Object> children;
        const QVariant answer = ask(object, u"GetChildren"_s);
        if (!answer.isValid())
            return children;
        const auto list = answer.value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            Object child;
            QDBusObjectPath path;
            list.beginStructure();
            list >> child.service >> path;
            list.endStructure();
            child.path = path.path();
            children.append(child);
        }
        list.endArray();
        return children;
    }

    /// The names of the alerts that are shown in this program's windows.
    QStringList alerts() const
    {
        QStringList names;
        const Object root{u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s};
        for (const Object &program : childrenOf(root))
            collect(program, names);
        return names;
    }

    void collect(const Object &object, QStringList &names) const
    {
        if (ask(object, u"GetRole"_s).toUInt() == alertRole) {
            constexpr uint showing = 1U << 25; // ATSPI_STATE_SHOWING
            QList<uint> bits;
            ask(object, u"GetState"_s).value<QDBusArgument>() >> bits;
            const QVariant name =
                ask(object, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, u"Name"_s});
            if (bits.value(0) & showing) {
                alertPath_ = object.path;
                names += name.value<QDBusVariant>().variant().toString();
            }
        }
        for (const Object &child : childrenOf(object))
            collect(child, names);
    }

    QString missing_;
    mutable QString alertPath_;
    QStringList told_; ///< the objects that a screen reader was told to be shown
    QDBusConnection bus_ = QDBusConnection(u"none"_s);
};

/// The first value of the answer.
QVariant AccessibilityTest::ask(const Object &object, const QString &interface, const QString &method,
                                const QVariantList &arguments) const
{
    auto call = QDBusMessage::createMethodCall(object.service, object.path, interface, method);
    call.setArguments(arguments);
    const QDBusPendingCallWatcher answer(bus_.asyncCall(call));
    QEventLoop loop;
    connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!answer.isFinished())
        loop.exec();
    return answer.reply().arguments().value(0);
}

int main(int argc, char *argv[])
{
    PrivateDesktop desktop;
    const QString missing = desktop.start();
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    qunsetenv("AT_SPI_BUS_ADDRESS");
    QApplication application(argc, argv);
    AccessibilityTest test(missing);
    return QTest::qExec(&test, argc, argv);
}

#include "AccessibilityTest.moc"
