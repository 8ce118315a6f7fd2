#include "tests/business/HeaderConstants.h"

#include <QColor>
#include <QImage>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

const QString kPrefix = QStringLiteral(":/icons/res/icons/48px-");

QStringList iconPaths()
{
    QStringList paths;
    for (const auto &constant : tessel::test::constantsOfTheHeader()) {
        if (constant.second.startsWith(kPrefix))
            paths += constant.second;
    }
    return paths;
}

QImage imageOf(const QString &path) { return QImage(path).convertToFormat(QImage::Format_ARGB32); }

/// Relative luminance as the web accessibility guidelines define it.
double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

template<typename Predicate>
int countPixels(const QImage &image, Predicate predicate)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += predicate(image.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

int pixelsThatStandOut(const QImage &image, QRgb background)
{
    return countPixels(image,
        [background](QRgb pixel) { return qAlpha(pixel) == 255 && contrast(pixel, background) >= 2.0; });
}

void addIconRows()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : iconPaths())
        QTest::newRow(qPrintable(path)) << path;
}

} // namespace

class tst_Icons : public QObject {
    Q_OBJECT

private slots:
    void theConstantsNameFourteenIcons() { QCOMPARE(iconPaths().size(), 14); }

    void theContrastOfBlackAndWhiteIsTwentyOne()
    {
        QCOMPARE(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0);
        QCOMPARE(contrast(qRgb(32, 33, 36), qRgb(32, 33, 36)), 1.0);
    }

    void eachIconIsInTheResourcesInItsSize_data() { addIconRows(); }
    void eachIconIsInTheResourcesInItsSize()
    {
        QFETCH(QString, path);
        QVERIFY(QFile::exists(path));
        QCOMPARE(QImage(path).size(), QSize(48, 48));
    }

    void eachIconShowsSomethingOnATransparentGround_data() { addIconRows(); }
    void eachIconShowsSomethingOnATransparentGround()
    {
        QFETCH(QString, path);
        const QImage image = imageOf(path);
        const int visible = countPixels(image, [](QRgb pixel) { return qAlpha(pixel) > 0; });
        // A twentieth of the area is the least that still reads as a drawing.
        QVERIFY2(visible >= 48 * 48 / 20, qPrintable(QString::number(visible)));
        QVERIFY2(visible < 48 * 48, "no transparent pixel");
    }

    void eachIconStandsOutOnLightAndOnDark_data() { addIconRows(); }
    void eachIconStandsOutOnLightAndOnDark()
    {
        QFETCH(QString, path);
        const QImage image = imageOf(path);
        const int onLight = pixelsThatStandOut(image, qRgb(0xff, 0xff, 0xff));
        const int onDark = pixelsThatStandOut(image, qRgb(0x20, 0x21, 0x24));
        QVERIFY2(onLight > 0, "nothing stands out on #ffffff");
        QVERIFY2(onDark > 0, "nothing stands out on #202124");
    }

    void noTwoIconsLookTheSame()
    {
        const QStringList paths = iconPaths();
        QStringList alike;
        for (int one = 0; one < paths.size(); ++one) {
            for (int other = one + 1; other < paths.size(); ++other) {
                if (imageOf(paths.at(one)) == imageOf(paths.at(other)))
                    alike += paths.at(one) + QStringLiteral(" = ") + paths.at(other);
            }
        }
        QCOMPARE(alike, QStringList());
    }
};

QTEST_APPLESS_MAIN(tst_Icons)
#include "tst_Icons.moc"
