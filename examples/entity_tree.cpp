// The entities of a dictionary as a tree whose names can be edited.
// Usage: example_entity_tree DICTIONARY [PICTURE]; with PICTURE, saves what the window shows and ends.

#include "business/ProcessDictionaryBusiness.h"
#include "business/models/DictionaryTreeModel.h"
#include "model/TDmEntity.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTreeView>

#include <memory>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QFile file(arguments.value(1));
    if (!file.open(QFile::ReadOnly)) {
        qCritical("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
        return 2;
    }
    const QVariantMap document = QJsonDocument::fromJson(file.readAll()).object().toVariantMap();

    // The root stands for the document; it owns all that is read below it.
    auto root = std::make_unique<TDmEntity>();
    root->setName(document.value(QStringLiteral("name")).toString());
    root->setLevel(1);
    const std::unique_ptr<QList<TDmEntity *>> entities(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(document, 1));
    root->getChildren()->append(*entities);

    DictionaryTreeModel model(nullptr, root.get());
    QTreeView view;
    view.setWindowTitle(file.fileName());
    view.setModel(&model);
    view.expandAll();
    view.show();
    if (arguments.size() > 2)
        return view.grab().save(arguments.at(2)) ? 0 : 2;
    return QApplication::exec();
}
