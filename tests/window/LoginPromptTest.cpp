// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LoginPrompt.h"
#include "OpenedDialog.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QDialog>

#include <atomic>
#include <future>

using namespace testing_support;

/// The window asks for a user name and a password, for a worker that waits.
class LoginPromptTest : public WindowTest
{
    Q_OBJECT

    int cancel_ = 0;

    std::future<std::optional<Login>> ask(const LoginQuestion &question,
                                          const std::optional<Login> &refused = {})
    {
        Logins::ofRun().forgive();
        return std::async(std::launch::async, [this, question, refused] {
            return Logins::ofRun().login(question.server, question, refused, &cancel_);
        });
    }
    static QDialog *shown(const OpenedDialog &opened)
    {
        QDialog *dialog = nullptr;
        const bool isShown = QTest::qWaitFor([&] {
            dialog = opened.dialog->findChild<QDialog *>(u"login"_s);
            return dialog && dialog->isVisible();
        });
        return isShown ? dialog : nullptr;
    }
    static bool isOver(const std::future<std::optional<Login>> &answer)
    {
        return QTest::qWaitFor(
            [&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    }

private Q_SLOTS:
    void asksInTheWindow()
    {
        const OpenedDialog opened;
        auto answer = ask({u"photo"_s, u"one"_s, u"max"_s});
        QDialog *dialog = shown(opened);
        QVERIFY(dialog && dialog->isModal() && dialog->windowModality() == Qt::WindowModal);
        QCOMPARE(dialog->findChild<QLabel *>(u"loginText"_s)->text(),
                 u"The printer \"photo\" on one wants a user name and a password."_s);
        auto *password = dialog->findChild<QLineEdit *>(u"loginPassword"_s);
        QCOMPARE(dialog->findChild<QLineEdit *>(u"loginUser"_s)->text(), u"max"_s);
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        QTRY_COMPARE(dialog->focusWidget(), password);
        QTest::keyClicks(password, u"geheim"_s);
        QTest::keyClick(password, Qt::Key_Return);
        QVERIFY(isOver(answer));
        const std::optional<Login> login = answer.get();
        QCOMPARE(login, Login({u"max"_s, u"geheim"_s}));
        QTRY_VERIFY(!opened.dialog->findChild<QDialog *>(u"login"_s));

        auto known = ask({{}, u"one"_s, u"max"_s});
        QVERIFY(isOver(known));
        QCOMPARE(known.get(), login);
        auto again = ask({{}, u"one"_s, u"root"_s}, login);
        dialog = shown(opened);
        QVERIFY(dialog);
        QCOMPARE(dialog->findChild<QLabel *>(u"loginText"_s)->text(),
                 u"The user name or the password was not accepted.\n"
                 "The print server one wants a user name and a password."_s);
        QCOMPARE(dialog->findChild<QLineEdit *>(u"loginUser"_s)->text(), u"max"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(isOver(again) && !again.get());
        QVERIFY(opened.dialog->isVisible());
    }

    void endsWithWhatItIsFor_data()
    {
        addRows<bool>({{"the task is given up", true}, {"the window is destroyed", false}});
    }

    void endsWithWhatItIsFor()
    {
        const auto [isGivenUp] = row<bool>();
        auto opened = std::make_unique<OpenedDialog>();
        auto answer = ask({u"photo"_s, u"two"_s, u"max"_s});
        QVERIFY(shown(*opened));
        const auto back = qScopeGuard([this] { std::atomic_ref(cancel_).store(0); });
        if (isGivenUp)
            std::atomic_ref(cancel_).store(1);
        else
            opened.reset();
        QVERIFY(isOver(answer));
        QVERIFY(!answer.get());
        QTRY_VERIFY(!opened || !opened->dialog->findChild<QDialog *>(u"login"_s));
    }
};

CORVEL_WIDGETS_TEST(LoginPromptTest)
#include "LoginPromptTest.moc"
