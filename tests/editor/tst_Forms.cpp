#include "editor/DictionaryDocument.h"
#include "editor/views/EntityForm.h"
#include "editor/views/VariableForm.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/EditorFixtures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QWheelEvent>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// What \a field shows.
QString shownIn(const QWidget *field)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(field))
        return line->text();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(field))
        return text->toPlainText();
    if (const auto *choice = qobject_cast<const QComboBox *>(field))
        return choice->currentText();
    if (const auto *number = qobject_cast<const QSpinBox *>(field))
        return number->text();
    if (const auto *mark = qobject_cast<const QCheckBox *>(field))
        return mark->isChecked() ? "on" : "off";
    return "no field";
}

/// Types \a text into \a field, in place of what stands there, and leaves it with Tab. A mark is turned.
void typeInto(QWidget *field, const QString &text)
{
    field->setFocus(Qt::TabFocusReason);
    if (qobject_cast<QCheckBox *>(field)) {
        QTest::keyClick(field, Qt::Key_Space);
        return;
    }
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
}

/// Both forms over the small dictionary: of SEX and of HOUSE.
struct Forms {
    Forms()
    {
        load(document);
        variableForm.show(&sex());
        entityForm.show(&house());
    }

    TDmVariable &sex() { return variableIn(document, "PERSON", "SEX"); }
    TDmEntity &house() { return entityIn(document, "HOUSE"); }
    QUndoStack &stack() { return *document.undoStack(); }
    QWidget &form(const QString &of)
    {
        return of == "variable" ? static_cast<QWidget &>(variableForm) : entityForm;
    }

    DictionaryDocument document;
    VariableForm variableForm{document};
    EntityForm entityForm{document};
};

/// Form, field, what it shows of the small dictionary, what is typed, and the step's name.
struct Field {
    const char *form;
    const char *name;
    const char *title;
    const char *before;
    const char *typed;
};

const Field kFields[] = {
    {"variable", "type", "Type", "INTEGER", "REAL"},
    {"variable", "missing", "Missing", "9", "-9"},
    {"variable", "notApplicable", "Not applicable", "8", "97"},
    {"variable", "start", "Start", "12", "13"},
    {"variable", "length", "Length", "1", "2"},
    {"variable", "field", "Field", "F1", "F2"},
    {"variable", "documentation", "Documentation", "Asked of all.", "Asked of some."},
    {"entity", "label", "Label", "House", "Dwelling"},
    {"entity", "alias", "Alias", "", "HOME"},
    {"entity", "code", "Code variable", "H_CODE", "ROOMS"},
    {"entity", "labelVariable", "Label variable", "", "ROOMS"},
    {"entity", "weight", "Weight variable", "", "ROOMS"},
    {"entity", "virtual", "Virtual", "off", "on"},
    {"entity", "selectable", "Selectable", "on", "off"},
    {"entity", "documentation", "Documentation", "", "All of them."},
};

} // namespace

class tst_Forms : public QObject {
    Q_OBJECT

private slots:
    void eachFieldIsShownTypedAndUndone_data()
    {
        QTest::addColumn<int>("number");
        int number = 0;
        for (const Field &field : kFields)
            QTest::addRow("%s %s", field.form, field.name) << number++;
    }
    void eachFieldIsShownTypedAndUndone()
    {
        QFETCH(int, number);
        const Field &expected = kFields[number];
        Forms forms;
        QWidget &form = forms.form(expected.form);
        bringUp(form);
        auto *field = form.findChild<QWidget *>(expected.name);
        QVERIFY(field);
        QCOMPARE(field->accessibleName(), QString(expected.title));
        QCOMPARE(shownIn(field), QString(expected.before));
        const QByteArray before = textOf(forms.document);

        typeInto(field, expected.typed);
        QCOMPARE(shownIn(field), QString(expected.typed));
        QCOMPARE(forms.stack().count(), 1);
        QCOMPARE(forms.stack().undoText(),
            QString("change %1 of %2")
                .arg(expected.title, &form == &forms.entityForm ? QString("HOUSE") : QString("SEX")));
        const QByteArray after = textOf(forms.document);
        forms.stack().undo();
        QCOMPARE(shownIn(field), QString(expected.before));
        QCOMPARE(textOf(forms.document), before);
        forms.stack().redo();
        QCOMPARE(shownIn(field), QString(expected.typed));
        QCOMPARE(textOf(forms.document), after);
    }

    void whatIsTypedIsSaved_data() { eachFieldIsShownTypedAndUndone_data(); }
    void whatIsTypedIsSaved()
    {
        QFETCH(int, number);
        const Field &expected = kFields[number];
        Forms forms;
        QWidget &form = forms.form(expected.form);
        bringUp(form);
        typeInto(form.findChild<QWidget *>(expected.name), expected.typed);
        Forms opened;
        load(opened.document, textOf(forms.document));
        opened.variableForm.show(&opened.sex());
        opened.entityForm.show(&opened.house());
        QCOMPARE(
            shownIn(opened.form(expected.form).findChild<QWidget *>(expected.name)), QString(expected.typed));
    }

    void leavingAFieldAsItIsChangesNothing()
    {
        Forms forms;
        for (const char *of : {"variable", "entity"}) {
            QWidget &form = forms.form(of);
            bringUp(form);
            for (const Field &field : kFields) {
                if (QByteArray(field.form) != of)
                    continue;
                form.findChild<QWidget *>(field.name)->setFocus();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
        }
        QCOMPARE(forms.stack().count(), 0);
        QVERIFY(!forms.document.isModified());
    }

    void theSizeIsOfferedWhereItIsKept()
    {
        Forms forms;
        bringUp(forms.variableForm);
        auto *size = forms.variableForm.findChild<QSpinBox *>("size");
        QVERIFY(!size->isEnabled());
        TDmVariable &note = variableIn(forms.document, "PERSON", "NOTE");
        forms.variableForm.show(&note);
        QVERIFY(size->isEnabled());
        typeInto(size, "40");
        QCOMPARE(note.getSize(), 40);
        QCOMPARE(forms.stack().undoText(), QString("change Size of NOTE"));
        QVERIFY(textOf(forms.document).contains("\"size\": 40"));
        typeInto(forms.variableForm.findChild<QWidget *>("type"), "REAL");
        QVERIFY(!size->isEnabled());
        QVERIFY(!textOf(forms.document).contains("\"size\": 40"));
        forms.stack().undo();
        QVERIFY(size->isEnabled());
        QCOMPARE(shownIn(size), QString("40"));
    }

    void tabGoesFromFieldToFieldInOrder()
    {
        Forms forms;
        bringUp(forms.variableForm);
        forms.variableForm.findChild<QWidget *>("type")->setFocus();
        QStringList names;
        for (int i = 0; i < 7; ++i) {
            names += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names.join(' '), QString("type missing notApplicable start length field documentation"));
    }

    void whatFilesDoNotHoldIsOnlyShown()
    {
        Forms forms;
        forms.sex().setDecimals(2);
        forms.sex().getMetadataVariables()->setRecord("H");
        forms.variableForm.show(&forms.sex());
        auto *decimals = forms.variableForm.findChild<QSpinBox *>("decimals");
        auto *record = forms.variableForm.findChild<QLineEdit *>("record");
        QCOMPARE(decimals->value(), 2);
        QCOMPARE(record->text(), QString("H"));
        QVERIFY(!decimals->isEnabled());
        QVERIFY(!record->isEnabled());
    }

    void oneStepForAllThatWasTyped()
    {
        Forms forms;
        bringUp(forms.variableForm);
        auto *missing = forms.variableForm.findChild<QSpinBox *>("missing");
        missing->setFocus();
        missing->selectAll();
        QTest::keyClicks(missing, "9998");
        QCOMPARE(forms.stack().count(), 0);
        QTest::keyClick(missing, Qt::Key_Return);
        QCOMPARE(forms.stack().count(), 1);
        QCOMPARE(forms.sex().getMissing(), 9998);
        QTest::keyClick(missing, Qt::Key_Up);
        QCOMPARE(forms.sex().getMissing(), 9999);
        QCOMPARE(forms.stack().count(), 2);
    }

    void theWheelChangesNothing_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("name");
        QTest::newRow("a choice") << "variable"
                                  << "type";
        QTest::newRow("a number") << "variable"
                                  << "missing";
        QTest::newRow("a variable's name") << "entity"
                                           << "code";
    }
    void theWheelChangesNothing()
    {
        QFETCH(QString, form);
        QFETCH(QString, name);
        Forms forms;
        bringUp(forms.form(form));
        auto *field = forms.form(form).findChild<QWidget *>(name);
        const QString before = shownIn(field);
        for (const int turn : {120, -120}) {
            QWheelEvent wheel(field->rect().center(), field->mapToGlobal(field->rect().center()), QPoint(),
                QPoint(0, turn), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(field, &wheel);
            QCOMPARE(shownIn(field), before);
        }
        QCOMPARE(forms.stack().count(), 0);
    }

    void typesAreOfferedAndOthersMayBeTyped()
    {
        Forms forms;
        bringUp(forms.variableForm);
        auto *type = forms.variableForm.findChild<QComboBox *>("type");
        QStringList offered;
        for (int i = 0; i < type->count(); ++i)
            offered += type->itemText(i);
        QCOMPARE(offered, QStringList({"STRING", "INTEGER", "REAL", "BOOL"}));
        type->setFocus();
        QTest::keyClick(type, Qt::Key_Down);
        QCOMPARE(forms.stack().count(), 1);
        QCOMPARE(forms.sex().getVarType(), QString("REAL"));
        typeInto(type, "date");
        QCOMPARE(forms.sex().getVarType(), QString("date"));
        QCOMPARE(type->count(), 4);
    }

    void theVariablesOfTheEntityAreOffered()
    {
        Forms forms;
        for (const char *name : {"code", "labelVariable", "weight"}) {
            auto *choice = forms.entityForm.findChild<QComboBox *>(name);
            QStringList offered;
            for (int i = 0; i < choice->count(); ++i)
                offered += choice->itemText(i);
            QCOMPARE(offered.join(' ').simplified(), QString("H_CODE ROOMS"));
        }
    }

    void theLayoutFollowsStartAndLength()
    {
        Forms forms;
        bringUp(forms.variableForm);
        typeInto(forms.variableForm.findChild<QWidget *>("start"), "40");
        typeInto(forms.variableForm.findChild<QWidget *>("length"), "5");
        QCOMPARE(forms.sex().getFieldRelativePosition(), 40);
        QCOMPARE(forms.sex().getMetadataVariables()->getStart(), 40);
        QCOMPARE(forms.sex().getFieldSize(), 5);
        QCOMPARE(forms.sex().getMetadataVariables()->getLength(), 5);
    }

    void nothingIsShownOfNothing()
    {
        Forms forms;
        forms.variableForm.show(static_cast<TDmVariable *>(nullptr));
        forms.document.clear();
        for (const Field &field : kFields) {
            QWidget &form = forms.form(field.form);
            const QString shown = shownIn(form.findChild<QWidget *>(field.name));
            QVERIFY2(shown.isEmpty() || shown == "off", field.name);
            QVERIFY(!form.isEnabled());
        }
        forms.stack().undo();
        load(forms.document);
        forms.variableForm.show(&forms.sex());
        QVERIFY(forms.variableForm.isEnabled());
        QCOMPARE(shownIn(forms.variableForm.findChild<QWidget *>("missing")), QString("9"));
        QCOMPARE(shownIn(forms.variableForm.findChild<QWidget *>("size")), QString("0"));
    }

    void aTextThatCannotBeShownAsItIsStays_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("no-break space") << QString("Quel age ?").replace(' ', QChar(0xa0));
        QTest::newRow("line ends of another system") << QString("one\r\ntwo\rthree");
        QTest::newRow("line separator") << QString("one") + QChar(QChar::LineSeparator) + "two";
        QTest::newRow("a tab and a line") << QString("one\ttwo\nthree\n");
    }
    void aTextThatCannotBeShownAsItIsStays()
    {
        QFETCH(QString, text);
        Forms forms;
        forms.sex().setDocumentation(text);
        forms.variableForm.show(&forms.sex());
        bringUp(forms.variableForm);
        forms.variableForm.findChild<QWidget *>("documentation")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(forms.sex().getDocumentation(), text);
        QCOMPARE(forms.stack().count(), 0);
    }

    void typingKeepsNoBreakSpaces()
    {
        Forms forms;
        const QString question = QString("Quel age ?").replace(' ', QChar(0xa0));
        forms.sex().setDocumentation(question);
        forms.variableForm.show(&forms.sex());
        bringUp(forms.variableForm);
        auto *field = forms.variableForm.findChild<QPlainTextEdit *>("documentation");
        field->setFocus();
        QTest::keyClick(field, Qt::Key_End);
        QTest::keyClick(field, Qt::Key_Return);
        QTest::keyClicks(field, "Ans");
        QTest::keyClick(field, Qt::Key_Tab);
        QCOMPARE(forms.sex().getDocumentation(), question + "\nAns");
        QCOMPARE(forms.stack().count(), 1);
    }

    void mnemonicsAreUsedOnce()
    {
        Forms forms;
        // Those of the menu bar and of the pages around the forms.
        for (const char *of : {"variable", "entity"}) {
            QStringList used = {"F", "E", "V", "D", "R", "H", "B", "G", "P", "Y"};
            const auto labels = forms.form(of).findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                const QString key = QKeySequence::mnemonic(label->text()).toString().section('+', 1);
                QVERIFY2(!key.isEmpty(), qPrintable(label->text()));
                QVERIFY2(!used.contains(key), qPrintable(label->text()));
                QVERIFY(label->buddy());
                used.append(key);
            }
        }
    }
};

QTEST_MAIN(tst_Forms)
#include "tst_Forms.moc"
