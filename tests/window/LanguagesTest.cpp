// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bundle.h"
#include "HelpWindow.h"
#include "OpenedDialog.h"
#include "TestMain.h"
#include "WindowPlacement.h"

#include <QtCore/QTranslator>
#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>

#include <algorithm>

using namespace testing_support;

namespace {

/// What a widget is called in a failure.
QString nameOf(const QWidget *widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
}

QString textOf(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label ? label->text() : QString();
}

/// Every letter that Alt is pressed with in the window as it stands, with who has it.
QMap<QString, QStringList> mnemonics(const QWidget &window)
{
    QMap<QString, QStringList> found;
    const auto add = [&found](const QString &text, const QWidget *owner) {
        const QKeySequence keys = QKeySequence::mnemonic(text);
        if (!keys.isEmpty())
            found[keys.toString()] << nameOf(owner);
    };
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (qobject_cast<const QAbstractButton *>(widget) || (label && label->buddy()))
            add(textOf(widget), widget);
        if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i), tabs);
        }
    }
    return found;
}

} // namespace

/// The window in each of its languages, on each of its pages: nothing cut off, no key taken twice, everything
/// named for a screen reader.
class LanguagesTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : {u"en"_s, u"de"_s, u"fr"_s, u"es"_s, u"ja"_s})
            QTest::newRow(qPrintable(language)) << language;
    }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        WindowTest::init();
        QVERIFY(speak(translator_, language));
    }

    void cleanup()
    {
        QCoreApplication::removeTranslator(&translator_);
        QLocale::setDefault(QLocale::c());
    }

    // Nothing is cut off; and through the interface that a screen reader asks: what each control is, what it
    // is called, what it stands for.
    void textsFitAndControlsAreNamed()
    {
        const OpenedDialog opened;
        for (int page = 0; page < opened.dialog->pageCount(); ++page) {
            opened.dialog->showPage(page);
            QCoreApplication::processEvents();
            for (QWidget *widget : opened.dialog->findChildren<QWidget *>()) {
                if (!widget->isVisible())
                    continue;
                const QByteArray name = (nameOf(widget) + u": "_s + textOf(widget)).toUtf8();
                const auto *label = qobject_cast<const QLabel *>(widget);
                if (!textOf(widget).isEmpty() && !(label && label->wordWrap())) {
                    const QSize needed = label ? widget->minimumSizeHint() : widget->sizeHint();
                    QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                             name.constData());
                    // Nor cut off by what it stands in.
                    QCOMPARE(widget->visibleRegion().boundingRect().size(), widget->size());
                }
                if (label && label->buddy()) {
                    const auto relations =
                        QAccessible::queryAccessibleInterface(label->buddy())->relations(QAccessible::Label);
                    const auto isThis = [label](const auto &pair) {
                        return pair.first->object() == label;
                    };
                    QVERIFY2(std::any_of(relations.begin(), relations.end(), isThis), name.constData());
                }
                // The parts of a widget are reached through it, a row of tabs through its tabs.
                const bool isPart = widget->objectName().startsWith(u"qt_"_s) || widget->focusProxy();
                if (widget->focusPolicy() == Qt::NoFocus || isPart)
                    continue;
                QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
                QVERIFY2(accessible, name.constData());
                const auto role = accessible->role();
                QVERIFY2(role != QAccessible::NoRole && role != QAccessible::Client, name.constData());
                QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), name.constData());
                QVERIFY2(!qobject_cast<QSlider *>(widget) || accessible->valueInterface(), name.constData());
            }
        }
    }

    void keysAreUnique()
    {
        const OpenedDialog opened;
        const auto clashes = [](const OpenedDialog &dialog) {
            QStringList found;
            const auto all = mnemonics(*dialog.dialog);
            for (auto entry = all.cbegin(); entry != all.cend(); ++entry) {
                if (entry->size() > 1)
                    found += entry.key() + u": "_s + entry->join(u", "_s);
            }
            return all.isEmpty() ? QStringList(u"no keys"_s) : found;
        };
        for (int page = 0; page < opened.dialog->pageCount(); ++page) {
            opened.dialog->showPage(page);
            QCOMPARE(clashes(opened), QStringList());
            opened.dialog->print();
            QCOMPARE(clashes(opened), QStringList());
            QTest::keyClick(opened.dialog.get(), Qt::Key_Escape); // asks
            QVERIFY(opened.isSeen(u"messageAction"_s));
            QCOMPARE(clashes(opened), QStringList());
            QTRY_VERIFY(opened.find<QWidget>(u"print"_s)->isEnabled());
            QCOMPARE(clashes(opened), QStringList());
        }
        // What a refusal offers.
        for (const PanelMode mode : {PanelMode::Constraint, PanelMode::Settings}) {
            const OpenedDialog refusing(mode);
            refusing.dialog->showPage(2);
            refusing.click(u"matte"_s);
            if (mode == PanelMode::Settings)
                refusing.dialog->print();
            QCOMPARE(refusing.isSeen(u"calloutOffer"_s), mode == PanelMode::Constraint);
            QCOMPARE(clashes(refusing), QStringList());
        }
    }

    // To every page from every other one, and on each to some of the plug-in's controls.
    void keysLeadToPagesAndControls()
    {
        const OpenedDialog opened;
        const auto *pages = opened.find<QTabWidget>(u"panels"_s);
        const auto press = [&opened](const QString &text) {
            const QKeySequence letter = QKeySequence::mnemonic(text);
            if (!letter.isEmpty())
                QTest::keyClick(opened.dialog.get(), letter[0].key(), Qt::AltModifier);
            return !letter.isEmpty();
        };
        for (int page = pages->count() - 1; page >= 0; --page) {
            if (page == pages->count() - 2) { // the dialog's own page leaves the letters to others
                QTest::keyClick(opened.dialog.get(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
                QCOMPARE(pages->currentIndex(), page);
                continue;
            }
            QVERIFY2(press(pages->tabText(page)), qPrintable(pages->tabText(page)));
            QCOMPARE(pages->currentIndex(), page);
            int reached = 0;
            for (const QLabel *label : pages->currentWidget()->findChildren<QLabel *>()) {
                if (label->buddy() && label->buddy()->isEnabled() && press(label->text())) {
                    QVERIFY2(label->buddy()->hasFocus() || label->buddy()->focusProxy(),
                             qPrintable(label->text()));
                    ++reached;
                }
            }
            for (const auto *button : pages->currentWidget()->findChildren<QAbstractButton *>())
                reached += button->isVisible() && !button->shortcut().isEmpty() ? 1 : 0;
            QVERIFY(page == pages->count() - 1 || reached > 0);
        }
    }

    // With the language's decimal separator; the range stands beside the field, and a number out of it is
    // told.
    void numbersAsPeopleTypeThem()
    {
        const OpenedDialog opened;
        opened.type(81, u"99"_s);
        QCOMPARE(opened.fieldText(81), u"9"_s);
        const auto *note = opened.find<QLabel>(u"numberNote"_s);
        QVERIFY(note && note->isVisible() && note->text().contains(u"-25"_s));
        QCOMPARE(note->visibleRegion().boundingRect().size(), note->sizeHint());
        for (int page = 0; page < 2; ++page) {
            opened.dialog->showPage(page);
            for (int tag = 81; const QWidget *field = opened.control(tag); ++tag) {
                const auto *range = opened.find<QLabel>(field->objectName().replace(u"Field"_s, u"Range"_s));
                QVERIFY(range && range->isVisible() && range->text().contains(u"25"_s) == (page == 0));
                QCOMPARE(field->accessibleDescription(), range->text());
                const QRect text = inWindow(range);
                const QRect box = inWindow(field);
                const bool isBeside =
                    text.left() > box.right() && std::abs(text.center().y() - box.center().y()) <= 1;
                QVERIFY(isBeside || (text.top() > box.bottom() && text.right() == box.right()));
            }
        }
        opened.type(82, u'1' + QLocale().decimalPoint() + u'5');
        QCOMPARE(opened.fieldText(82), u"1.5"_s);
        QTest::keyClick(opened.control(82), Qt::Key_Tab);
        QCOMPARE(opened.fieldText(82), u"1.50"_s);
        QCOMPARE(opened.message(), QString());
        QVERIFY(opened.prints());
        QCOMPARE(opened.printed(u"SharpnessIntensity Red"_s), u"1.50 9"_s);
    }

    void placementIsKept()
    {
        QSize size;
        {
            const OpenedDialog opened;
            size = opened.dialog->size() + QSize(60, 40);
            opened.dialog->resize(size);
            QVERIFY(WindowPlacement::save(opened.dialog->saveGeometry()));
        }
        const OpenedDialog again;
        QVERIFY(again.dialog->restoreGeometry(WindowPlacement::load()));
        QCOMPARE(again.dialog->size(), size);
    }

    void helpIsInTheLanguage()
    {
        QFETCH_GLOBAL(QString, language);
        const QString page = language == "en"_L1 ? u"/index.html"_s : u"/index_%1.html"_s.arg(language);
        QWidget parent;
        HelpWindow::showFor(&parent);
        const auto *text = parent.findChild<QTextBrowser *>();
        QVERIFY2(text->source().path().endsWith(page), qPrintable(text->source().path()));
        QVERIFY(text->toPlainText().contains("CUPS"_L1));
        const auto bundle =
            pdekit::Bundle::open(qEnvironmentVariable("CORVEL_PDE_PATH") + "/Corvel9031.bundle"_L1);
        pdekit::Feedback::install(nullptr); // the desktop's
        QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
        QVERIFY(pdekit::Feedback::current().openHelpBook(*bundle, u"Corvel9031Help"_s));
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QVERIFY2(url_.path().endsWith("Corvel9031Help"_L1 + page), qPrintable(url_.path()));
    }

    void takeUrl(const QUrl &url) { url_ = url; }

private:
    QUrl url_;
    QTranslator translator_;
};

CORVEL_WIDGETS_TEST(LanguagesTest)
#include "LanguagesTest.moc"
