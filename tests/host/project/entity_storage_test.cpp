// The entity storage: every live scene, group and layer found by its uuid, and nothing else.
#include <gtest/gtest.h>

#include "project_files.h"
#include "tx/host/txk_lr.h"
#include "tx/host/txk_prj.h"
#include "tx/host/txk_scn_2d.h"
#include "tx_host/project.h"

namespace tx::host::testing {
namespace {

TEST(EntityStorage, FindsEverySceneGroupAndLayerByUuidAsTheTreeHandsThemOut) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  // Every element of small.json that has a uuid.
  for (const std::uint64_t uuid :
       {0xa01, 0xa02, 0xa03, 0xa04, 0xa05, 0xa06, 0xb01, 0xc01, 0xc02, 0xd01, 0xe01, 0xe02}) {
    tx_entity* const found = find(uuid);
    ASSERT_NE(found, nullptr) << uuid;
    EXPECT_EQ(tx_entity_get_uuid(found).opaque, uuid);
  }
  tx_scn* const map = tx_scns_2d_get(tx_prj_get_scns_2d_ptr(tx_prj_get_instance()), 0);
  tx_lr_group* const roads = tx_lr_group_get_child_by_index(tx_scn_get_lr_group_ptr(map), 0);
  EXPECT_EQ(find(0xa01), tx_entities_safe_upcast(tx_scn_safe_upcast(map)));
  EXPECT_EQ(find(0xa02), tx_entities_safe_upcast(tx_lr_group_safe_upcast(roads)));
}

TEST(EntityStorage, FindsAndRemovesNothingWithoutAUuidOrAProject) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  for (const std::uint64_t uuid : {0x0ull, 0xa00ull, 0xffffffffffffffffull}) {
    EXPECT_EQ(find(uuid), nullptr) << uuid;
    EXPECT_FALSE(tx_host_project_remove(tx_uuid{uuid})) << uuid;
  }
  ASSERT_TRUE(tx_host_project_load(example("empty.json").c_str()));
  EXPECT_EQ(find(0xa01), nullptr);
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_host_project_clear();
  EXPECT_EQ(find(0xa01), nullptr);
  EXPECT_FALSE(tx_host_project_remove(tx_uuid{0xa01}));
}

TEST(EntityStorage, ARemovedGroupAndWhatItHoldsAreGoneButStayReadable) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_entity* const highway = find(0xa03);
  tx_lr_group* const root =
      tx_scn_get_lr_group_ptr(tx_scns_2d_get(tx_prj_get_scns_2d_ptr(tx_prj_get_instance()), 0));
  ASSERT_EQ(tx_lr_group_get_count_child(root), 2u);

  EXPECT_TRUE(tx_host_project_remove(tx_uuid{0xa02}));
  for (const std::uint64_t gone : {0xa02, 0xa03, 0xa04}) EXPECT_EQ(find(gone), nullptr) << gone;
  for (const std::uint64_t kept : {0xa01, 0xa05, 0xc02}) EXPECT_NE(find(kept), nullptr) << kept;
  ASSERT_EQ(tx_lr_group_get_count_child(root), 1u);
  EXPECT_EQ(caption(tx_lr_group_get_child_by_index(root, 0), &tx_lr_group_get_wcaption), u"Реки");
  // A plug-in that still holds the removed layer can read it.
  EXPECT_EQ(caption(highway), u"Шоссе");
  EXPECT_FALSE(tx_host_project_remove(tx_uuid{0xa02}));
  EXPECT_FALSE(tx_host_project_remove(tx_uuid{0xa03}));
}

TEST(EntityStorage, ARemovedSceneTakesItsLayersAndIsNotSaved) {
  ASSERT_TRUE(tx_host_project_load(example("small.json").c_str()));
  tx_scns_2d* const planshets = tx_prj_get_plugin_scns_2d_ptr(tx_prj_get_instance(), 1);
  EXPECT_TRUE(tx_host_project_remove(tx_uuid{0xe01}));
  EXPECT_EQ(tx_scns_2d_get_size(planshets), 0u);
  EXPECT_EQ(find(0xe01), nullptr);
  EXPECT_EQ(find(0xe02), nullptr);

  const std::string saved = utf8(scratch_folder() / "saved.json");
  ASSERT_TRUE(tx_host_project_save(saved.c_str()));
  ASSERT_TRUE(tx_host_project_load(saved.c_str()));
  EXPECT_EQ(find(0xe01), nullptr);
  EXPECT_EQ(tx_scns_2d_get_size(tx_prj_get_plugin_scns_2d_ptr(tx_prj_get_instance(), 1)), 0u);
  EXPECT_NE(find(0xd01), nullptr);
}

}  // namespace
}  // namespace tx::host::testing
