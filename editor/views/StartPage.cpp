#include "editor/views/StartPage.h"

#include "editor/Settings.h"

#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessel::editor {

StartPage::StartPage(QWidget *parent)
    : QWidget(parent)
    , recent(new QListWidget(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 36, 48, 36);
    auto *title = new QLabel(tr("Describe a census or a survey"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    title->setFont(large);
    layout->addWidget(title);
    layout->addWidget(
        new QLabel(tr("A dictionary holds the entities, their variables and value labels."), this));
    layout->addSpacing(12);

    struct Choice {
        QString text;
        QString name;
        void (StartPage::*signal)();
    };
    const Choice choices[] = {
        {tr("&New dictionary"), QStringLiteral("startNew"), &StartPage::newRequested},
        {tr("&Open…"), QStringLiteral("startOpen"), &StartPage::openRequested},
        {tr("Look at the &sample census"), QStringLiteral("startSample"), &StartPage::sampleRequested},
    };
    for (const Choice &choice : choices) {
        auto *button = new QPushButton(choice.text, this);
        button->setObjectName(choice.name);
        QString plain = choice.text;
        button->setAccessibleName(plain.remove(QLatin1Char('&')));
        button->setMaximumWidth(320);
        connect(button, &QPushButton::clicked, this, choice.signal);
        layout->addWidget(button);
    }
    layout->addSpacing(12);
    auto *recentTitle = new QLabel(tr("Re&cent files"), this);
    recentTitle->setBuddy(recent);
    layout->addWidget(recentTitle);
    recent->setObjectName(QStringLiteral("recent"));
    recent->setAccessibleName(tr("Recent files"));
    layout->addWidget(recent, 1);
    connect(recent, &QListWidget::itemActivated, this,
        [this](const QListWidgetItem *item) { emit fileRequested(item->data(Qt::UserRole).toString()); });
    refresh();
}

void StartPage::refresh()
{
    recent->clear();
    const QStringList files = Settings::recentFiles();
    for (const QString &file : files) {
        auto *item = new QListWidgetItem(
            tr("%1  —  %2").arg(QFileInfo(file).fileName(), QFileInfo(file).path()), recent);
        item->setData(Qt::UserRole, file);
    }
}

} // namespace tessel::editor
