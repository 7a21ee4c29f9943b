// The entity storage: every live scene, group and layer found by its uuid, and nothing else.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <set>

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

// The uuid index is a hash table that closes the gap a removal leaves by moving later entries
// back: removals in a scrambled order, checked against the plain set of what is left, with
// uuids that share their low bits so that runs of neighbouring slots form.
TEST(EntityStorage, RemovalsInAnyOrderLeaveExactlyTheRestFindable) {
  constexpr std::uint64_t layers = 3000;
  auto uuid_of = [](std::uint64_t i) { return (i + 1) << 20 | 0xabc; };
  std::string children;
  for (std::uint64_t i = 0; i < layers; ++i) {
    char layer[96];
    std::snprintf(layer, sizeof layer,
                  R"(%s{"uuid":"%llx","caption":"l","group":false,"expanded":false})",
                  i == 0 ? "" : ",", static_cast<unsigned long long>(uuid_of(i)));
    children += layer;
  }
  const std::filesystem::path file = scratch_folder() / "many.json";
  std::ofstream(file, std::ios::binary)
      << R"({"format":"tarvex-project","version":1,"scenes_2d":{"caption":"S","scenes":[)"
      << R"({"uuid":"1","caption":"s","layers":[)" << children << R"(]}]},)"
      << R"("scenes_3d":{"caption":"T","scenes":[]},"layouts":{"caption":"L","scenes":[]}})";
  ASSERT_TRUE(tx_host_project_load(utf8(file).c_str())) << tx_host_project_error();

  std::set<std::uint64_t> left;
  for (std::uint64_t i = 0; i < layers; ++i) left.insert(uuid_of(i));
  // 1009 is prime to 3000: i * 1009 mod 3000 visits every layer once, far from its neighbours.
  for (std::uint64_t step = 0; step < layers * 2 / 3; ++step) {
    const std::uint64_t gone = uuid_of(step * 1009 % layers);
    ASSERT_TRUE(tx_host_project_remove(tx_uuid{gone})) << step;
    left.erase(gone);
    if (step % 250 != 0) continue;
    for (std::uint64_t i = 0; i < layers; ++i) {
      const bool kept = left.contains(uuid_of(i));
      ASSERT_EQ(find(uuid_of(i)) != nullptr, kept) << "after " << step << ", layer " << i;
    }
  }
  EXPECT_EQ(tx_lr_group_get_count_child(tx_scn_get_lr_group_ptr(
                tx_scns_2d_get(tx_prj_get_scns_2d_ptr(tx_prj_get_instance()), 0))),
            left.size());
}

}  // namespace
}  // namespace tx::host::testing
