// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PrintPositions.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>

using namespace testing_support;

/// Where the printer prints on the paper: measured with the test page, and kept for the printer and the
/// paper.
class PrintPositionTest : public WindowTest
{
    Q_OBJECT

private:
    static QWidget *windowOf(const OpenedDialog &opened)
    {
        opened.click(u"position"_s);
        auto *field = opened.find<QDoubleSpinBox>(u"moveRight"_s);
        return field ? field->window() : nullptr;
    }

    static void type(QWidget *window, const QString &name, const QString &text)
    {
        auto *field = window->findChild<QDoubleSpinBox *>(name);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
    }

    /// The place of the test page's lines, in millimeters from the left and from the top of the paper.
    static QPointF linesOf(const QString &pdf)
    {
        constexpr int perInch = 600;
        QProcess::execute(u"pdftoppm"_s, {u"-r"_s, QString::number(perInch), u"-gray"_s, u"-png"_s,
                                          u"-singlefile"_s, pdf, pdf.chopped(4)});
        const QImage page(pdf.chopped(4) + u".png"_s);
        const auto darkest = [&page](bool isAcross) {
            const int length = isAcross ? page.width() : page.height();
            const int other = isAcross ? page.height() - 30 : page.width() - 30; // beside the text
            int best = 0;
            int place = 0;
            for (int i = 0; i < length; ++i) {
                const int dark = 255 - qGray(isAcross ? page.pixel(i, other) : page.pixel(other, i));
                if (dark > best) {
                    best = dark;
                    place = i;
                }
            }
            return (place + 0.5) * 25.4 / perInch;
        };
        return {darkest(true), darkest(false)};
    }

private Q_SLOTS:
    void theTestPageIsMeasured()
    {
        const OpenedDialog opened;
        QWidget *window = windowOf(opened);
        QVERIFY(window && window->isVisible());
        const auto says = [window](const QString &text) {
            return std::ranges::any_of(window->findChildren<QLabel *>(), [&text](const QLabel *label) {
                return label->isVisible() && label->text().contains(text);
            });
        };
        QVERIFY(says(opened.find<QComboBox>(u"printer"_s)->currentText()));
        const auto printed = [&](int number) {
            QTest::mouseClick(window->findChild<QPushButton *>(u"printTestPage"_s), Qt::LeftButton);
            const QString name = number == 1 ? u"Print position.pdf"_s : u"Print position-2.pdf"_s;
            const QString pdf = opened.folder.filePath(u"out/"_s + name);
            const bool isThere = QTest::qWaitFor(
                [&] { return QFile::exists(pdf) && opened.find<QPushButton>(u"print"_s)->isEnabled(); });
            return isThere ? linesOf(pdf) : QPointF();
        };
        const QPointF before = printed(1);
        QVERIFY2(std::abs(before.x() - 20) < 0.1 && std::abs(before.y() - 20) < 0.1,
                 qPrintable(u"%1 %2"_s.arg(before.x()).arg(before.y())));

        type(window, u"fromLeft"_s, u"19.3"_s);
        type(window, u"fromTop"_s, u"20.4"_s);
        QTest::mouseClick(window->findChild<QPushButton *>(u"correctPosition"_s), Qt::LeftButton);
        QCOMPARE(window->findChild<QDoubleSpinBox *>(u"moveRight"_s)->value(), 0.7);
        QCOMPARE(window->findChild<QDoubleSpinBox *>(u"moveDown"_s)->value(), -0.4);
        QCOMPARE(window->findChild<QDoubleSpinBox *>(u"fromLeft"_s)->value(), 20.0);
        const QPointF after = printed(2);
        QVERIFY2(std::abs(after.x() - 20.7) < 0.1 && std::abs(after.y() - 19.6) < 0.1,
                 qPrintable(u"%1 %2"_s.arg(after.x()).arg(after.y())));
        // Return corrects, too, and what is farther than a printer can be wrong is refused.
        for (const auto &[measured, moved] : {std::pair(u"20.6"_s, 0.1), {u"35"_s, 0.1}}) {
            type(window, u"fromLeft"_s, measured);
            QTest::keyClick(window->findChild<QDoubleSpinBox *>(u"fromLeft"_s), Qt::Key_Return);
            QVERIFY(window->isVisible());
            QCOMPARE(window->findChild<QDoubleSpinBox *>(u"moveRight"_s)->value(), moved);
        }
        QVERIFY(says(u"10 mm at most"_s));
    }

    void itIsKeptForThePaper()
    {
        {
            const OpenedDialog opened;
            type(windowOf(opened), u"moveDown"_s, u"-1.5"_s);
        }
        const OpenedDialog opened;
        QWidget *window = windowOf(opened);
        const auto *down = window->findChild<QDoubleSpinBox *>(u"moveDown"_s);
        QCOMPARE(down->value(), -1.5);
        // Another paper of the same printer has another place, and the open window follows it.
        auto *papers = opened.find<QComboBox>(u"pageSize"_s);
        papers->setFocus();
        QTest::keyClick(papers, papers->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
        QTRY_COMPARE(down->value(), 0.0);
        type(window, u"moveRight"_s, u"0.3"_s);
        QTest::keyClick(papers, papers->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    }

    void eachPaperHasItsOwn()
    {
        PrintPositions::save(u"one"_s, u"a6"_s, {1, 2});
        PrintPositions::save(u"one"_s, u"a5"_s, {3, 4});
        PrintPositions::save(u"one"_s, u"a5"_s, {});
        QCOMPARE(PrintPositions::load(u"one"_s, u"a6"_s), QPoint(1, 2));
        QCOMPARE(PrintPositions::load(u"one"_s, u"a5"_s), QPoint());
    }

    void badFilesCountAsNone()
    {
        PrintPositions::save(u"one"_s, u"a6"_s, {400, -3});
        QCOMPARE(PrintPositions::load(u"one"_s, u"a6"_s), QPoint(PrintPositions::farthest, -3));
        QCOMPARE(PrintPositions::load(u"one"_s, u"a5"_s), QPoint());
        QFile file(config_->filePath(u"corvel-print/print-positions.json"_s));
        for (const QByteArray &content : {QByteArray("{"), QByteArray("[1]"),
                                          QByteArray(R"({"version":2,"positions":{"one":{"a6":[1,2]}}})"),
                                          QByteArray(R"({"version":1,"positions":{"one":{"a6":"x"}}})")}) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
            file.close();
            QCOMPARE(PrintPositions::load(u"one"_s, u"a6"_s), QPoint());
        }
    }
};

CORVEL_WIDGETS_TEST(PrintPositionTest)
#include "PrintPositionTest.moc"
