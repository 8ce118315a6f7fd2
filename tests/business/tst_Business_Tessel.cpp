#include "business/Business_Tessel.h"

#include <QtTest>

#include <type_traits>

static_assert(std::is_default_constructible_v<Business_Tessel>);
static_assert(!std::is_polymorphic_v<Business_Tessel>);

class tst_Business_Tessel : public QObject {
    Q_OBJECT

private slots:
    void theMarkHoldsNothing()
    {
        const Business_Tessel mark;
        QVERIFY(std::is_empty_v<decltype(mark)>);
    }

    void marksCanBeMadeOnTheHeapToo()
    {
        const QScopedPointer<Business_Tessel> one(new Business_Tessel);
        const QScopedPointer<Business_Tessel> other(new Business_Tessel);
        QVERIFY(one.data() != other.data());
    }
};

QTEST_APPLESS_MAIN(tst_Business_Tessel)
#include "tst_Business_Tessel.moc"
