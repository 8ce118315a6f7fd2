#include "editor/ExpressionText.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QtTest>

using namespace tessel::editor;

namespace {

TDmEntity *add(TDmEntity &parent, const char *name)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    parent.getChildren()->append(entity);
    return entity;
}

QString namesOf(const QList<TDmEntity *> &entities)
{
    QStringList names;
    for (const TDmEntity *entity : entities)
        names.append(entity->getName());
    return names.join(' ');
}

} // namespace

class tst_ExpressionText : public QObject {
    Q_OBJECT

private slots:
    void entityIsItsName();
    void variableIsWrittenWithItsEntity();
    void categoryIsItsCode_data();
    void categoryIsItsCode();
    void blankIsPutWhereOneIsMissing_data();
    void blankIsPutWhereOneIsMissing();
    void entitiesComeInTreeOrder();
    void rootComesFirstIfItHoldsVariables();
    void entityWithoutListOfChildrenIsTheLast();
};

void tst_ExpressionText::entityIsItsName()
{
    TDmEntity entity;
    entity.setName("PERSON");
    entity.setLabel("Person");
    entity.setAlias("P");
    QCOMPARE(termOf(entity), "PERSON");
}

void tst_ExpressionText::variableIsWrittenWithItsEntity()
{
    TDmEntity entity;
    entity.setName("PERSON");
    TDmVariable variable;
    variable.setName("AGE");
    variable.setLabel("Age in years");
    QCOMPARE(termOf(entity, variable), "PERSON.AGE");
}

void tst_ExpressionText::categoryIsItsCode_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("term");
    const auto row = [](const char *tag, const char *type, const char *code, const char *term) {
        QTest::newRow(tag) << QString(type) << QString(code) << QString(term);
    };
    row("integer as it stands", "INTEGER", "1", "1");
    row("negative integer", "INTEGER", "-1", "-1");
    row("zeros before it stay", "INTEGER", "007", "007");
    row("real", "REAL", "2.50", "2.50");
    row("bool", "BOOL", "true", "true");
    row("no type", "", "A", "A");
    row("quotes stay outside a text", "INTEGER", "O'N", "O'N");
    row("text is quoted", "STRING", "A", "'A'");
    row("text of digits too", "STRING", "01", "'01'");
    row("type in lower case, as files hold it", "string", "A", "'A'");
    row("type with blanks around it", " String\t", "A", "'A'");
    row("type that only begins so", "STRINGS", "A", "A");
    row("quote is doubled", "STRING", "O'N", "'O''N'");
    row("each quote is doubled", "STRING", "''x'", "'''''x'''");
    row("double quote stays", "STRING", "a\"b", "'a\"b'");
    row("blanks in a code stay", "STRING", " A ", "' A '");
    row("empty text", "STRING", "", "''");
    row("empty number is nothing", "INTEGER", "", "");
}

void tst_ExpressionText::categoryIsItsCode()
{
    QFETCH(QString, type);
    QFETCH(QString, code);
    TDmVariable variable;
    variable.setVarType(type);
    ValueLabelElement category;
    category.setValue(code);
    category.setLabel("a label");
    QTEST(termOf(variable, category), "term");
    QCOMPARE(category.getValue(), code);
}

void tst_ExpressionText::blankIsPutWhereOneIsMissing_data()
{
    QTest::addColumn<QChar>("left");
    QTest::addColumn<QChar>("right");
    QTest::addColumn<bool>("needed");
    const auto row = [](const char *tag, QChar left, QChar right, bool needed) {
        QTest::newRow(tag) << left << right << needed;
    };
    row("between letters", 'a', 'b', true);
    row("between operators", '=', '=', true);
    row("at the beginning", QChar(), 'b', false);
    row("at the end", 'a', QChar(), false);
    row("in an empty text", QChar(), QChar(), false);
    row("behind a blank", ' ', 'b', false);
    row("before a blank", 'a', ' ', false);
    row("behind a tab", '\t', 'b', false);
    row("before a tab", 'a', '\t', false);
    row("behind a line end", QChar(QChar::ParagraphSeparator), 'b', false);
    row("before a line end", 'a', QChar(QChar::ParagraphSeparator), false);
    row("behind a no-break space", QChar(QChar::Nbsp), 'b', false);
    row("behind an opening bracket", '(', 'b', false);
    row("before a closing bracket", 'a', ')', false);
    row("before an opening bracket", 'a', '(', true);
    row("behind a closing bracket", ')', 'b', true);
    row("between brackets that close and open", ')', '(', true);
    row("in an empty pair of brackets", '(', ')', false);
    row("behind another kind of bracket", '[', 'b', true);
}

void tst_ExpressionText::blankIsPutWhereOneIsMissing()
{
    QFETCH(QChar, left);
    QFETCH(QChar, right);
    QTEST(isBlankNeeded(left, right), "needed");
}

void tst_ExpressionText::entitiesComeInTreeOrder()
{
    TDmEntity root;
    root.setName("ROOT");
    QCOMPARE(namesOf(entitiesForExpressions(root)), "");
    TDmEntity *a = add(root, "A");
    add(*add(*a, "A1"), "A11");
    add(*a, "A2");
    add(*add(root, "B"), "B1");
    QCOMPARE(namesOf(entitiesForExpressions(root)), "A A1 A11 A2 B B1");
}

void tst_ExpressionText::rootComesFirstIfItHoldsVariables()
{
    TDmEntity root;
    root.setName("ROOT");
    add(root, "A");
    root.addVariables(new TDmVariable);
    QCOMPARE(namesOf(entitiesForExpressions(root)), "ROOT A");
}

void tst_ExpressionText::entityWithoutListOfChildrenIsTheLast()
{
    TDmEntity root;
    add(root, "A")->setChildren(nullptr);
    add(root, "B");
    QCOMPARE(namesOf(entitiesForExpressions(root)), "A B");
}

QTEST_APPLESS_MAIN(tst_ExpressionText)
#include "tst_ExpressionText.moc"
