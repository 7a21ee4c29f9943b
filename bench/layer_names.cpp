#include "layer_names.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "tx_host/services/utf.h"

namespace tx::bench {
namespace {

// splitmix64: small, fast, and the same sequence everywhere.
class random_source {
 public:
  explicit random_source(std::uint64_t origin) : state_(origin) {}
  std::uint64_t next() noexcept {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }
  // Uniform enough in [0, bound) for picking words.
  std::size_t below(std::size_t bound) noexcept { return next() % bound; }
  bool chance(unsigned percent) noexcept { return below(100) < percent; }
  template <class T, std::size_t N>
  const T& pick(const T (&items)[N]) noexcept {
    return items[below(N)];
  }

 private:
  std::uint64_t state_;
};

constexpr std::u16string_view latin_words[] = {
    u"buildings", u"contour", u"parcel",   u"Forest", u"zone",   u"boundary", u"railroad",
    u"street",    u"Water",   u"poi",      u"labels", u"Grid",   u"river",    u"Lake",
    u"roads",     u"bridge",  u"District", u"HYDRO",  u"relief", u"crossroad"};
constexpr std::u16string_view cyrillic_words[] = {
    u"дороги",   u"река",    u"Озеро",  u"здания", u"участки", u"Лес",   u"граница",
    u"КВАРТАЛЫ", u"подписи", u"рельеф", u"Мосты",  u"улицы",   u"СЕТКА", u"водоёмы"};
constexpr std::u16string_view road_words[] = {u"road", u"Road", u"ROAD", u"Дорога", u"ДОРОГА"};
constexpr std::u16string_view separators[] = {u" ", u" ",  u"_", u"_", u"-",  u" (", u") ",
                                              u".", u"__", u"/", u"№", u"\"", u", ", u"\t"};
constexpr std::u16string_view numbers[] = {u"2", u"10", u"2024", u"v3", u"001", u"1_500"};
constexpr std::u16string_view extensions[] = {u".tab", u".shp", u".TIF", u".gpkg", u".mif"};

std::u16string make_name(random_source& random) {
  const std::size_t length = 5 + random.below(56);  // 5 .. 60
  const bool cyrillic = random.chance(40);
  std::u16string name;
  while (name.size() < length) {
    if (!name.empty()) name += random.pick(separators);
    if (random.chance(12)) {
      name += random.pick(road_words);
    } else if (random.chance(10)) {
      name += random.pick(numbers);
    } else if (cyrillic != random.chance(15)) {
      name += random.pick(cyrillic_words);
    } else {
      name += random.pick(latin_words);
    }
  }
  std::u16string_view extension;
  if (random.chance(30)) extension = random.pick(extensions);
  name.resize(length > extension.size() ? length - extension.size() : 1);
  name += extension;
  name.resize(std::min(name.size(), length));
  return name;
}

}  // namespace

std::vector<std::u16string> make_layer_names(std::size_t count, std::uint64_t origin) {
  random_source random(origin);
  std::vector<std::u16string> names;
  names.reserve(count);
  for (std::size_t i = 0; i < count; ++i) names.push_back(make_name(random));
  return names;
}

const std::vector<std::u16string>& layer_names() {
  static const std::vector<std::u16string> names = make_layer_names(1'000'000, 0x7A12u);
  return names;
}

void write_utf8_lines(std::ostream& out, const std::vector<std::u16string>& names) {
  for (const std::u16string& name : names) out << host::to_utf8(name) << '\n';
}

}  // namespace tx::bench
