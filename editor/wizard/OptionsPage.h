#pragma once

#include <QWizardPage>

class QCheckBox;
class QTableWidget;
class QTableWidgetItem;

namespace tessel::editor {

class RunPlan;

/// Fifth page of the run wizard: the switches of the run, and those of each entity in a table.
class OptionsPage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a plan, which takes what is switched at once.
    explicit OptionsPage(RunPlan &plan, QWidget *parent = nullptr);

    void initializePage() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const QTableWidgetItem *item);

    RunPlan &plan;
    QCheckBox *inRangeBox;
    QCheckBox *noRangesBox;
    QTableWidget *table;
};

} // namespace tessel::editor
