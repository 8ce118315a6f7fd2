#include "business/RunCreationBusiness.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "util/Validate.h"

#include <iostream>

// One class of each library, used as another program would.
int main()
{
    Config config;
    config.getDataBase()->setName(QStringLiteral("CENSUS"));
    if (!Validate().validateName(config.getDataBase()->getName()))
        return 1;
    const QByteArray document =
        RunCreationBusiness().exportConfigToJson(&config).toJson(QJsonDocument::Compact);
    std::cout << document.constData() << '\n';
    return document.contains("\"name\":\"CENSUS\"") ? 0 : 1;
}
