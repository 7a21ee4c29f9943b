// The plug-in's string table read back through the loader, letter for letter and length for
// length, in both languages: the strings that no printed dialog of the end-to-end cases shows
// whole in both (those compare every caption they print), trailing blanks included.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "guards.h"
#include "host_services.h"
#include "resources/loader.h"

namespace tx::resource {
namespace {

using test::english;
using test::language_guard;
using test::russian;

struct table_row {
  std::int32_t id;
  std::u16string russian;
  std::u16string english;
};

// The separators, in their order: 34 characters, the tab and the numero sign among them.
const std::u16string separators = u" .,!()@#\u2116~`;$%:^&?*-_+='<>\t/\\{}[]|";

const table_row table[] = {
    {102, u"Сбросить изменения", u"Drop changes"},
    {128, separators, separators},
    {131, u"Не выбран ни один элемент для переименования", u"No items are selected for renaming"},
    {132, u"Задано пустое имя для переименования. Проверьте дерево элементов",
     u"An empty name was specified for renaming. Check the element tree"},
    {153, u"Учитывать регистр ", u"Sensitive to case"},
    {154, u"Слово целиком ", u"Only whole words"},
    {176, u"Регистр", u"Case"},
    {177, u"нижний регистр", u"lover case"},
    {178, u"ВЕРХНИЙ РЕГИСТР", u"UPPER CASE"},
    {179, u"Первая буква в верхнем регистре", u"First letter in uppercase"},
    {180, u"Без изменений", u"Without changes"},
    {201, u"Добавить", u"Add"},
    {202, u"В начало", u"To the begining"},
    {203, u"В конец", u"In the end"},
    {226, u"Удалить", u"Remove"},
    {227, u"Все до символов", u"Everything to"},
    {228, u"Все после символов", u"Everything after"},
    {229, u"N символов", u"N chars"},
    {230, u"N = ", u"N = "},
    {231, u"С начала", u"Begin"},
    {232, u"С конца", u"End"},
    {233, u"Расширение", u"Ext"},
    {234, u"Без изменений", u"Without changes"},
    {235, u"Регистр", u"Case"},
    {236, u"Учитывать регистр ", u"Sensitive to case"},
    {237, u"Слово целиком", u"Whole words"},
    {238, u"Слово целиком ", u"Whole words"},
};

TEST(StringTable, EveryStringInBothLanguages) {
  struct language {
    const char* name;
    std::int32_t offset;
    std::u16string table_row::*text;
  };
  for (const language& lang : {language{"russian", russian, &table_row::russian},
                               language{"english", english, &table_row::english}}) {
    SCOPED_TRACE(lang.name);
    const language_guard guard(lang.offset);
    for (const table_row& row : table) {
      test::string_sink visitor;
      EXPECT_TRUE(load_string(row.id, visitor.pointer())) << row.id;
      EXPECT_EQ(visitor.texts, std::vector{row.*lang.text}) << row.id;
    }
  }
}

}  // namespace
}  // namespace tx::resource
