// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TestMain.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>

namespace testing_support {

namespace {

const TestClass *first;

} // namespace

TestClass::TestClass(const char *name, Application application, Maker maker) noexcept
    : name_(name)
    , application_(application)
    , maker_(maker)
    , next_(first)
{
    first = this;
}

const TestClass *TestClass::named(const char *name)
{
    const TestClass *found = first;
    while (found && qstrcmp(found->name_, name) != 0)
        found = found->next_;
    return found;
}

void TestClass::printNames()
{
    for (const TestClass *each = first; each; each = each->next_)
        std::fprintf(stderr, "  %s\n", each->name_);
}

int TestClass::run(int argc, char *argv[]) const
{
    std::unique_ptr<QCoreApplication> application;
    if (application_ == Application::Widgets) {
        application = std::make_unique<QApplication>(argc, argv);
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // like QTEST_MAIN
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    return QTest::qExec(maker_().get(), argc, argv);
}

} // namespace testing_support

int main(int argc, char *argv[])
{
    const auto *test = argc > 1 ? testing_support::TestClass::named(argv[1]) : nullptr;
    if (!test) {
        std::fprintf(stderr, "Usage: %s CLASS [ARGUMENT OF QTEST...], where CLASS is one of:\n", argv[0]);
        testing_support::TestClass::printNames();
        return 2;
    }
    std::rotate(argv + 1, argv + 2, argv + argc); // argv[argc] stays null, wherever the name goes
    return test->run(argc - 1, argv);
}
