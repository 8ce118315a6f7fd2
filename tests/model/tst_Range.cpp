#include "model/Range.h"

#include <QtTest>

class tst_Range : public QObject {
    Q_OBJECT

private slots:
    void bothBoundsStartAtZero()
    {
        const Range range;
        QCOMPARE(range.getRangeMin(), 0.0);
        QCOMPARE(range.getRangeMax(), 0.0);
    }

    void eachBoundIsItsOwn()
    {
        Range range;
        range.setRangeMin(-2.5);
        range.setRangeMax(9.25);
        QCOMPARE(range.getRangeMin(), -2.5);
        QCOMPARE(range.getRangeMax(), 9.25);
    }
};

QTEST_APPLESS_MAIN(tst_Range)
#include "tst_Range.moc"
