// The SDK's project functions over examples/small.json, called as a plug-in calls them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project_files.h"
#include "tx/host/txk_lr.h"
#include "tx/host/txk_prj.h"
#include "tx/host/txk_scn_2d.h"
#include "tx/host/txk_scn_3d.h"
#include "tx_host/project.h"

namespace tx::host::testing {
namespace {

tx_prj* open_small() {
  EXPECT_TRUE(tx_host_project_load(example("small.json").c_str())) << tx_host_project_error();
  return tx_prj_get_instance();
}

// What each getter reads, captions included, is compared whole with small.tree by
// txhost.project_small; here, what that print cannot show.
TEST(ProjectSdk, IndexesOutsideACollectionAnswerNothing) {
  tx_prj* const project = open_small();
  tx_scns_2d* const scenes_2d = tx_prj_get_scns_2d_ptr(project);
  for (const int32_t outside : {-1, 2, 1000}) {
    EXPECT_EQ(tx_prj_get_plugin_scns_2d_ptr(project, outside), nullptr) << outside;
  }
  EXPECT_EQ(tx_scns_2d_get(scenes_2d, 2), nullptr);
  EXPECT_EQ(tx_scns_3d_get(tx_prj_get_scns_3d_ptr(project), 1), nullptr);
  // The project and the root group stand for no element; the root group is a group.
  EXPECT_EQ(tx_entity_get_uuid(tx_prj_safe_upcast(project)).opaque, 0u);
  tx_lr_group* const map_root = tx_scn_get_lr_group_ptr(tx_scns_2d_get(scenes_2d, 0));
  EXPECT_EQ(tx_entity_get_uuid(tx_entities_safe_upcast(tx_lr_group_safe_upcast(map_root))).opaque,
            0u);
  EXPECT_TRUE(tx_lr_group_is_group(map_root));
  EXPECT_EQ(tx_lr_group_get_child_by_index(map_root, 2), nullptr);
}

TEST(ProjectSdk, InvertLayersFollowsTheProjectAndTheHostsSetting) {
  tx_host_project_clear();
  EXPECT_FALSE(tx_options_get_invert_layers());
  tx_host_project_set_invert_layers(true);  // nothing open: nothing to set
  EXPECT_FALSE(tx_options_get_invert_layers());

  open_small();
  EXPECT_FALSE(tx_options_get_invert_layers());
  tx_host_project_set_invert_layers(true);
  EXPECT_TRUE(tx_options_get_invert_layers());
  const std::string saved = utf8(scratch_folder() / "inverted.json");
  ASSERT_TRUE(tx_host_project_save(saved.c_str()));
  open_small();
  EXPECT_FALSE(tx_options_get_invert_layers());
  ASSERT_TRUE(tx_host_project_load(saved.c_str()));
  EXPECT_TRUE(tx_options_get_invert_layers());
  tx_host_project_set_invert_layers(false);
  EXPECT_FALSE(tx_options_get_invert_layers());
}

TEST(ProjectSdk, NullHandlesAnswerNothingAndChangeNothing) {
  tx_host_project_clear();
  EXPECT_EQ(tx_prj_get_instance(), nullptr);
  EXPECT_EQ(tx_prj_safe_upcast(nullptr), nullptr);
  EXPECT_EQ(tx_prj_get_scns_2d_ptr(nullptr), nullptr);
  EXPECT_EQ(tx_prj_get_scns_3d_ptr(nullptr), nullptr);
  EXPECT_EQ(tx_prj_get_layouts_data_ptr(nullptr), nullptr);
  EXPECT_EQ(tx_prj_get_plugin_scns_2d_count(nullptr), 0);
  EXPECT_EQ(tx_prj_get_plugin_scns_2d_ptr(nullptr, 0), nullptr);
  EXPECT_EQ(tx_scns_2d_get_size(nullptr), 0u);
  EXPECT_EQ(tx_scns_2d_get(nullptr, 0), nullptr);
  EXPECT_EQ(tx_scns_2d_get_meta_id(nullptr), nullptr);
  EXPECT_EQ(tx_scns_3d_get_size(nullptr), 0u);
  EXPECT_EQ(tx_scns_3d_get(nullptr, 0), nullptr);
  EXPECT_EQ(tx_scn_get_lr_group_ptr(nullptr), nullptr);
  EXPECT_EQ(tx_lr_group_get_count_child(nullptr), 0u);
  EXPECT_EQ(tx_lr_group_get_child_by_index(nullptr, 0), nullptr);
  EXPECT_FALSE(tx_lr_group_is_group(nullptr));
  EXPECT_FALSE(tx_lr_group_get_expanded(nullptr));
  EXPECT_EQ(tx_entity_get_uuid(nullptr).opaque, 0u);
  EXPECT_EQ(caption(static_cast<tx_scn*>(nullptr), &tx_scn_get_wcaption), u"<untouched>");
  EXPECT_EQ(caption(static_cast<tx_lr_group*>(nullptr), &tx_lr_group_get_wcaption), u"<untouched>");
  EXPECT_EQ(caption(static_cast<tx_entities*>(nullptr), &tx_entities_get_wcaption), u"<untouched>");
  EXPECT_EQ(caption(static_cast<tx_entity*>(nullptr)), u"<untouched>");
  tx_entity_set_wcaption(nullptr, u"ignored");
  EXPECT_EQ(tx_host_project_caption_write_count(), 0u);
}

}  // namespace
}  // namespace tx::host::testing
