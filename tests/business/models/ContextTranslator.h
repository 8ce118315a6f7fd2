#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

namespace tessel::test {

/// While it lives, every translatable text is shown with its context in front: "Context: text".
class ContextTranslator : public QTranslator {
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QStringLiteral("%1: %2").arg(QLatin1String(context), QLatin1String(text));
    }

private:
    Q_DISABLE_COPY_MOVE(ContextTranslator)
};

} // namespace tessel::test
