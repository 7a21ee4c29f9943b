// The docker frame and the picture element: what the host reads from them.
#include "toolkit/docker.h"

#include <gtest/gtest.h>

#include <vector>

#include "host_doubles.h"
#include "toolkit/bitmap.h"

namespace tx::test {
namespace {

// A content widget whose layout is a single picture.
struct picture_widget {
  explicit picture_widget(std::int32_t image) : picture(image) {}
  custom_pointer layout() { return picture.pointer(); }
  toolkit::bitmap picture;
};

// The caption in either language and the content are what the end-to-end cases print.
TEST(Docker, AnswersItsFlagsAndIdAndNoImageItHasNot) {
  toolkit::docker<picture_widget> frame(10, 100);
  const tx_custom_pointer d = frame.pointer();
  const auto& t = ops<tx_docker_interface_92>(d);
  EXPECT_EQ(t.flags(d.object), 1u);
  EXPECT_EQ(t.id(d.object), 0xFFFFFFFFu);
  bytes_sink image;  // the plug-in has no bitmap 10
  EXPECT_FALSE(t.image(d.object, image.pointer()));
  string_sink caption;
  toolkit::docker<picture_widget> bare(0, 0);  // id 0: neither caption nor image
  EXPECT_FALSE(bare.caption(caption.pointer()) || bare.image(image.pointer()));
  EXPECT_TRUE(caption.texts.empty() && image.calls.empty());
}

TEST(Bitmap, PixelsComeFromTheReferenceAndChangesAreToldOnce) {
  toolkit::bitmap picture(100);
  recording_view view;
  picture.set_view(view.pointer());
  bytes_sink pixels;
  EXPECT_TRUE(ops<tx_bitmap_interface_0>(picture.pointer())
                  .pixels(picture.pointer().object, pixels.pointer()));
  for (std::int32_t absent : {0, 999}) {
    picture.set_image(absent);
    EXPECT_FALSE(picture.pixels(pixels.pointer())) << absent;
  }
  ASSERT_EQ(pixels.calls.size(), 1u);
  EXPECT_EQ(pixels.calls[0].shape(), (std::vector<std::int32_t>{16, 16, 3}));
  picture.set_image(999);
  picture.set_hint(101);
  EXPECT_EQ(view.told,
            (std::vector<std::uint32_t>{TX_CHANGED_VALUE, TX_CHANGED_VALUE, TX_CHANGED_TEXTS}));
}

}  // namespace
}  // namespace tx::test
