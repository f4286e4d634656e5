// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <memory>
#include <type_traits>

#include "HostInterfaces.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

struct Base {
    virtual ~Base() = default;
    int value = 1;
};

struct Derived : Base { };

using Pointer = std::shared_ptr<Base>;

/// What the constructor of a holder throws for \a pointer, or an empty text.
std::string ErrorOf(const Pointer& pointer)
{
    try {
        const NotNull<Pointer> holder(pointer);
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return {};
}

} // namespace

class tst_NotNull : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void refusesNull()
    {
        QCOMPARE(ErrorOf(nullptr), std::string("NotNull can not initialized by null"));
    }

    void keepsWhatItHadWhenNullIsAssigned()
    {
        const auto first = std::make_shared<Base>();
        NotNull<Pointer> holder(first);
        QVERIFY_EXCEPTION_THROWN(holder = NotNull<Pointer>(Pointer()), std::logic_error);
        QCOMPARE(holder.Get(), first);
        QCOMPARE(first.use_count(), 2L);
    }

    void takesAndReleasesShares()
    {
        const auto object = std::make_shared<Base>();
        {
            const NotNull<Pointer> holder = object;
            QCOMPARE(object.use_count(), 2L);
            const NotNull<Pointer> copy =
                holder; // NOLINT(performance-unnecessary-copy-initialization)
            QCOMPARE(object.use_count(), 3L);
            QCOMPARE(&*copy, object.get());
            QCOMPARE(copy->value, 1);
        }
        QCOMPARE(object.use_count(), 1L);
    }

    void isNotEmptiedByAMove()
    {
        NotNull<Pointer> source = std::make_shared<Base>();
        const NotNull<Pointer> target = std::move(source);
        QCOMPARE(source.Get(), target.Get()); // NOLINT(bugprone-use-after-move): that is the point
        QVERIFY(source.Get() != nullptr);
    }

    void convertsAsItsPointersDo()
    {
        const auto derived = std::make_shared<Derived>();
        const NotNull<Pointer> holder = derived;
        QCOMPARE(holder.Get().get(), static_cast<Base*>(derived.get()));
        QVERIFY((std::is_convertible_v<std::shared_ptr<Derived>, NotNull<Pointer>>));
        QVERIFY((!std::is_convertible_v<std::shared_ptr<int>, NotNull<Pointer>>));
        QVERIFY(!std::is_default_constructible_v<NotNull<Pointer>>);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_NotNull)

#include "tst_NotNull.moc"
