#include "tests/sources/SampleTables.h"

#include <array>

namespace tessel::test {
namespace {

constexpr int kHouseholds = 48;
constexpr int kPersons = 96;

const std::array<QByteArray, 8> kMunicipalities{
    "010101", "010204", "020101", "020301", "030102", "030201", "040101", "050102"};

/// Some whole number from 0 to \a below - 1 that belongs to record \a record and question \a question:
/// answers that look like answers, and are the same whenever the samples are written.
int answer(int record, int question, int below)
{
    const unsigned mixed =
        (static_cast<unsigned>(record) * 7919U + static_cast<unsigned>(question) * 104729U) ^ 0x2f5bU;
    return static_cast<int>((mixed / 7U) % static_cast<unsigned>(below));
}

/// Households as the office in the capital keeps them: Spanish, with codes for what was not answered.
Table households()
{
    const std::vector<MissingSpan> unanswered{{9, 9}, {8, 8}};
    Table table;
    table.title = "Hogares, República de Altamar";
    table.sets = {{"tenencia", READSTAT_TYPE_DOUBLE,
                      {{1.0, "Propia, pagada"}, {2.0, "Propia, pagándose"}, {3.0, "Alquilada"},
                          {4.0, "Prestada por familiares o amigos"}, {5.0, "Cedida por el empleador"},
                          {8.0, "No aplica"}, {9.0, "No responde"}}},
        {"combustible", READSTAT_TYPE_DOUBLE,
            {{1.0, "Gas en garrafa"}, {2.0, "Gas por cañería"}, {3.0, "Electricidad"}, {4.0, "Leña"},
                {5.0, "Carbón"}, {8.0, "No corresponde: no cocina"}, {9.0, "No responde"}}},
        {"si_no", READSTAT_TYPE_DOUBLE, {{1.0, "Sí"}, {2.0, "No"}, {9.0, "No responde"}}},
        {"lengua", READSTAT_TYPE_STRING,
            {{QByteArray("es"), "Español"}, {QByteArray("pt"), "Português"}, {QByteArray("fr"), "Français"},
                {QByteArray("gn"), "Avañe'ẽ"}}}};
    const auto coded = [&unanswered](const char *name, const char *label, const char *set) {
        return Column{name, READSTAT_TYPE_DOUBLE, 0, label, "F1.0", set, unanswered};
    };
    table.columns = {{"MUN_CODE", READSTAT_TYPE_STRING, 6, "Código del municipio"},
        {"HH_CODE", READSTAT_TYPE_DOUBLE, 0, "Número del hogar en la vivienda", "F2.0"},
        {"WT_HH", READSTAT_TYPE_DOUBLE, 0, "Factor de expansión", "F9.4"},
        {"DATE", READSTAT_TYPE_DOUBLE, 0, "Fecha de la entrevista", "DATE11"},
        coded("TENURE", "Tenencia de la vivienda", "tenencia"),
        {"RENT", READSTAT_TYPE_DOUBLE, 0, "Alquiler mensual en escudos", "F8.2", "",
            {{99999, 99999}, {99998, 99998}}},
        {"BEDROOMS", READSTAT_TYPE_DOUBLE, 0, "Cuartos usados sólo para dormir", "F2.0", "", {{98, 99}}},
        coded("COOK_FUEL", "Combustible para cocinar", "combustible"),
        {"INTERNET", READSTAT_TYPE_DOUBLE, 0, "Acceso a Internet", "F1.0", "si_no", {{9, 9}}},
        {"LANGUAGE", READSTAT_TYPE_STRING, 2, "Lengua del hogar", "", "lengua"}};
    constexpr double dayOfTheCensus = 13911868800.0;
    constexpr double secondsOfADay = 86400;
    const std::array<QByteArray, 4> languages{"es", "pt", "fr", "gn"};
    for (int i = 0; i < kHouseholds; ++i) {
        const int tenure = answer(i, 1, 5) + 1;
        table.records.push_back({kMunicipalities[static_cast<size_t>(i / 6)], 1.0 + i % 2,
            1.0 + answer(i, 2, 9000) / 10000.0, dayOfTheCensus + answer(i, 3, 20) * secondsOfADay,
            double(tenure), tenure == 3 ? 200.0 + answer(i, 4, 9000) / 4.0 : 99998.0, 1.0 + answer(i, 5, 5),
            1.0 + answer(i, 6, 5), i % 11 == 0 ? 9.0 : 1.0 + answer(i, 7, 2),
            languages[static_cast<size_t>(answer(i, 8, 4))]});
    }
    return table;
}

/// Persons as a university keeps them: whole types, shared labels, tagged codes for what was not answered.
Table persons()
{
    Table table;
    table.title = "Persons, República de Altamar";
    table.sets = {{"sex", READSTAT_TYPE_INT32, {{1.0, "Male"}, {2.0, "Female"}}},
        {"relation", READSTAT_TYPE_INT32,
            {{1.0, "Reference person"}, {2.0, "Spouse or partner"}, {3.0, "Son or daughter"},
                {4.0, "Other relative"}, {5.0, "Other non-relative"}}},
        {"difficulty", READSTAT_TYPE_INT32,
            {{1.0, "No difficulty"}, {2.0, "Some difficulty"}, {3.0, "A lot of difficulty"},
                {4.0, "Cannot do at all"}, {'a', "Refused"}, {'b', "Does not know"}}}};
    table.columns = {{"mun_code", READSTAT_TYPE_STRING, 6, "Municipality code"},
        {"line_no", READSTAT_TYPE_INT8, 0, "Line number within the household"},
        {"wt_person", READSTAT_TYPE_DOUBLE, 0, "Expansion factor of the person", "%9.4f"},
        {"relation", READSTAT_TYPE_INT8, 0, "Relationship to the reference person", "", "relation"},
        {"sex", READSTAT_TYPE_INT8, 0, "Sex of the person", "", "sex"},
        {"age", READSTAT_TYPE_INT16, 0, "Age in completed years"},
        {"birth_date", READSTAT_TYPE_INT32, 0, "Date of birth", "%td"},
        {"dif_see", READSTAT_TYPE_INT8, 0, "Difficulty seeing, even with glasses", "", "difficulty"},
        {"dif_hear", READSTAT_TYPE_INT8, 0, "Difficulty hearing, even with a hearing aid", "", "difficulty"},
        {"first_name", READSTAT_TYPE_STRING, 12, ""}};
    const std::array<QByteArray, 6> names{"Íñigo", "María", "João", "Zoë", "Arami", "Élodie"};
    constexpr int dayOfTheCensus = 23242;
    for (int i = 0; i < kPersons; ++i) {
        const int age = answer(i, 11, 92);
        table.records.push_back({kMunicipalities[static_cast<size_t>(i / 12)], 1.0 + i % 4,
            1.0 + answer(i, 12, 9000) / 10000.0, i % 4 == 0 ? 1.0 : 2.0 + answer(i, 13, 4),
            1.0 + answer(i, 14, 2), double(age), double(dayOfTheCensus - age * 365 - answer(i, 15, 365)),
            i % 17 == 0 ? Cell('a') : Cell(1.0 + answer(i, 16, 4)),
            i % 23 == 0 ? Cell('b') : Cell(1.0 + answer(i, 17, 3)),
            names[static_cast<size_t>(answer(i, 18, 6))]});
    }
    return table;
}

/// Households as they are handed to another office: short names, no labels of values.
Table handedHouseholds()
{
    Table table;
    table.title = "Households";
    table.columns = {{"MUN_CODE", READSTAT_TYPE_STRING, 6, "Municipality code"},
        {"HH_CODE", READSTAT_TYPE_DOUBLE, 8, "Household number", "F2"},
        {"WT_HH", READSTAT_TYPE_DOUBLE, 8, "Expansion factor", "F9.4"},
        {"TENURE", READSTAT_TYPE_DOUBLE, 8, "Tenure of the dwelling", "F1"},
        {"RENT", READSTAT_TYPE_DOUBLE, 8, "Monthly rent in escudos", "COMMA10.2"},
        {"VISIT", READSTAT_TYPE_DOUBLE, 8, "Day of the interview", "DATE9"}};
    for (const std::vector<Cell> &record : households().records) {
        constexpr double secondsFromOneCalendarToTheOther = 11903760000.0;
        const double rent = std::get<double>(record[5]);
        table.records.push_back(
            {record[0], record[1], record[2], record[4], rent > 99997 ? Cell() : Cell(rent),
                (std::get<double>(record[3]) - secondsFromOneCalendarToTheOther) / 86400});
    }
    return table;
}

/// Places as a spreadsheet of the region writes them: semicolons, decimal commas, Windows-1252.
QByteArray places()
{
    const QString text =
        QStringLiteral("Código;Nombre;Tipo;Población;Superficie km²;Observación\r\n"
                       "010101;Bahía Clara;1;18230;112,5;\r\n"
                       "010204;Nácar;2;4102;87,25;\"Incluye \"\"Los Médanos\"\"\"\r\n"
                       "020101;Distrito Capital;1;241877;64;\r\n"
                       "020301;Peñas Blancas;2;9310;203,75;\"Creado en 2015; antes, Río Hondón\"\r\n"
                       "030102;Ñandurí;3;1204;318,5;\"Sede provisional:\nescuela n.º 4\"\r\n"
                       "030201;Alto Quebrachal;3;;402;Sin dato de población\r\n"
                       "040101;São Brás;1;30566;95,5;Língua cooficial: português\r\n"
                       "050102;Île-aux-Cèdres;2;2750;41,25;Langue co-officielle : français\r\n");
    return text.toLatin1();
}

} // namespace

std::vector<Sample> sampleSources()
{
    return {
        {QStringLiteral("household.sav"), fileOf(households(), {FileKind::Sav, 0, READSTAT_COMPRESS_ROWS})},
        {QStringLiteral("household.xpt"), fileOf(handedHouseholds(), {FileKind::Xpt, 5})},
        {QStringLiteral("person.dta"), fileOf(persons(), {FileKind::Dta, 118})},
        {QStringLiteral("places.csv"), places()}};
}

} // namespace tessel::test
