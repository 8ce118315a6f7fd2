#pragma once

#include <QFile>
#include <QPair>
#include <QRegularExpression>
#include <QString>
#include <QVector>

namespace tessel::test {

/// Name and value of each text constant of the constants header, in the order of the header, read from its
/// text: what the compiler sees has lost the order. A new constant shows up here by itself.
inline QVector<QPair<QString, QString>> constantsOfTheHeader()
{
    QFile file(QStringLiteral(TESSEL_SOURCE_DIR "/business/Constants.h"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    const QString text = QString::fromUtf8(file.readAll());
    // However the constant is initialised: its text is the one literal on the line.
    static const QRegularExpression constant(
        QStringLiteral("constexpr (?:inline )?(?:auto|QLatin1String) (k\\w+)[^\"\\n;]*\"([^\"]*)\""));
    QVector<QPair<QString, QString>> found;
    for (auto matches = constant.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        QString value = match.captured(2);
        value.replace(QLatin1String("\\r"), QLatin1String("\r"));
        value.replace(QLatin1String("\\n"), QLatin1String("\n"));
        value.replace(QLatin1String("\\t"), QLatin1String("\t"));
        found.append({match.captured(1), value});
    }
    return found;
}

} // namespace tessel::test
