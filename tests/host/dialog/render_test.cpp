// The dialog as text: the opening state in both languages, and the marks of every row and
// control state a user needs to see.
#include <gtest/gtest.h>

#include "test_dialog.h"
#include "tx_host/basic.h"
#include "tx_host/dialog/text_renderer.h"

namespace tx::test {
namespace {

using host::dialog::render_dialog;
using host::dialog::vocabulary_for;

std::string render(test_dialog& d, std::int32_t language) {
  tx_host_set_lng(language);
  std::string text =
      render_dialog(d.frame.pointer(), d.buttons.pointer(), vocabulary_for(language));
  tx_host_set_lng(0);
  return text;
}

TEST(RenderDialog, ShowsTheOpeningStateInRussian) {
  test_dialog d;
  EXPECT_EQ(render(d, 0),
            "┌ Переименование элементов проекта\n"
            "│ ┌ Преобразование\n"
            "│ │ 1) Тип: [Найти и заменить]  (1 Найти и заменить · 2 Изменить регистр)\n"
            "│ │ 2) Найти: «»  история: —\n"
            "│ │ 3) [ ] Учитывать регистр\n"
            "│ └\n"
            "│ Инструменты: Развернуть | Свернуть ‖ (Отменить)\n"
            "│          Старое имя │ Новое имя\n"
            "│    ▾ ( ) Сцены 2D   │\n"
            "│      ▾ [ ] Город    │\n"
            "│          [ ] Дороги │\n"
            "│          [ ] Реки   │\n"
            "│        [ ] Пусто    │\n"
            "│    ▸ ( ) Сцены 3D   │\n"
            "└\n"
            "[ Применить ] [ Закрыть ]\n");
}

TEST(RenderDialog, ShowsTheShownPanelSelectionTicksFaultsAndEmphasisInEnglish) {
  test_dialog d;
  test_widget& w = d.widget();
  w.selector.set_selection(1);  // the case panel replaces the find panel
  w.count.assign_value(7);
  w.count.set_enabled(false);
  w.find.remember(u"old");  // kept, though its panel is not shown
  w.city.selected = true;
  w.city.checked = true;
  w.roads.checked = true;
  w.roads.has_new_name = true;
  w.roads.new_name = u"Streets";
  w.roads.changed_last = true;
  w.rivers.has_new_name = true;  // an empty new name: faulty
  w.scenes3d.expanded = true;
  w.bar.tools().undo.set_enabled(true);
  w.bar.tools().collapse.set_visible(false);
  EXPECT_EQ(render(d, 50000),
            "┌ Rename Project Elements\n"
            "│ ┌ Transformation\n"
            "│ │ 1) Type: [Change case]  (1 Find and Replace · 2 Change case)\n"
            "│ │ 2) Case: [Without changes]  (1 Without changes · 2 lover case · 3 UPPER CASE)\n"
            "│ │ 3) N = 7  (0…100)  (disabled)\n"
            "│ └\n"
            "│ Tools: Expand ‖ Undo\n"
            "│          Old name   │ New name\n"
            "│    ▾ ( ) Сцены 2D   │\n"
            "│ >    ▾ [x] Город    │\n"
            "│          [x] Дороги │ Streets *\n"
            "│  !       [ ] Реки   │\n"
            "│        [ ] Пусто    │\n"
            "│    ▾ ( ) Сцены 3D   │\n"
            "│        [ ] Рельеф   │\n"
            "└\n"
            "[ Apply ] [ Close ]\n");
}

TEST(RenderDialog, ATextInputShowsItsTextAndHistoryMostRecentFirst) {
  test_dialog d;
  d.widget().find.remember(u"first");
  d.widget().find.remember(u"second");
  d.widget().find.set_text(u"typed");
  const std::string text = render(d, 0);
  EXPECT_NE(text.find("│ │ 2) Найти: «typed»  история: «second» · «first»\n"), std::string::npos)
      << text;
}

TEST(RenderDialog, ADialogWithoutButtonsOrCaptionStillHasItsFrame) {
  toolkit::docker<test_widget> bare(0);
  bare.widget().root.set_cell(0, custom_pointer{});
  bare.widget().root.set_cell(2, custom_pointer{});
  EXPECT_EQ(render_dialog(bare.pointer(), custom_pointer{}, vocabulary_for(0)),
            "┌\n"
            "│ Инструменты: Развернуть | Свернуть ‖ (Отменить)\n"
            "└\n");
}

}  // namespace
}  // namespace tx::test
