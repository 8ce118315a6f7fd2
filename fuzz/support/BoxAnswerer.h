#pragma once

#include <QMessageBox>
#include <QObject>

namespace tessel::fuzz {

/// Answers modal message boxes while it lives: one button after the other, as the bits of a number say, and
/// now and then none: the window is closed. Counts the boxes by their icon.
class BoxAnswerer : public QObject {
    Q_OBJECT

public:
    /// Two bits of \a plan choose each answer; behind the last bit it begins anew.
    explicit BoxAnswerer(unsigned plan);
    ~BoxAnswerer() override;

    int questions() const { return asked; }

    /// Questions that were answered with yes.
    int consents() const { return agreed; }

    int warnings() const { return warned; }

    /// Boxes that were neither a question nor a warning.
    int others() const { return told; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox &box);

    const unsigned answers;
    int boxes = 0;
    int asked = 0;
    int agreed = 0;
    int warned = 0;
    int told = 0;

    Q_DISABLE_COPY_MOVE(BoxAnswerer)
};

} // namespace tessel::fuzz
