// The shared library as a file: what it exports and imports, its slots, its hidden symbols, its version.
#include <dlfcn.h>
#include <elf.h>
#include <gtest/gtest.h>
#include <link.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "catalog/catalog.hpp"
#include "frame/interpose.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

using std::string;

struct Symbol {
  bool defined;
  std::size_t address, size;
};

/// The library's file, and where it was loaded. Both have the word size of this program.
struct Library {
  string bytes;
  std::map<string, Symbol> dynamic, all;  // .dynsym, .symtab
  char* base = nullptr;

  template <class T>
  const T* at(std::size_t offset) const {
    return reinterpret_cast<const T*>(bytes.data() + offset);
  }
  std::map<string, Symbol> table(ElfW(Word) type) const {
    std::map<string, Symbol> out;
    const auto* header = at<ElfW(Ehdr)>(0);
    const auto* sections = at<ElfW(Shdr)>(header->e_shoff);
    for (int s = 0; s < header->e_shnum; ++s) {
      if (sections[s].sh_type != type) continue;
      const auto* symbols = at<ElfW(Sym)>(sections[s].sh_offset);
      const std::size_t names = sections[sections[s].sh_link].sh_offset;
      for (std::size_t i = 1; i < sections[s].sh_size / sizeof *symbols; ++i)
        out[at<char>(names + symbols[i].st_name)] = {symbols[i].st_shndx != SHN_UNDEF, symbols[i].st_value, symbols[i].st_size};
    }
    return out;
  }
  template <class T>
  const T* loaded(const string& name) const {
    return reinterpret_cast<const T*>(base + all.at(name).address);
  }
};

const Library& library() {
  static const Library it = [] {
    Library l;
    std::ifstream in(ZELM_LIBRARY, std::ios::binary);
    l.bytes.assign(std::istreambuf_iterator<char>(in), {});
    l.dynamic = l.table(SHT_DYNSYM);
    l.all = l.table(SHT_SYMTAB);
    void* const handle = dlopen(ZELM_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    link_map* map = nullptr;
    if (!handle || dlinfo(handle, RTLD_DI_LINKMAP, &map) != 0) throw std::runtime_error(dlerror());
    l.base = reinterpret_cast<char*>(map->l_addr);
    return l;
  }();
  return it;
}

std::vector<const catalog::Function*> built() {
  std::vector<const catalog::Function*> out;
  for (const auto& f : catalog::functions())
    if (f.built()) out.push_back(&f);
  return out;
}

TEST(Library, ExportsTheBuiltFunctionsAndNothingElse) {
  std::set<string> expected, exported;
  for (const auto* f : built()) expected.insert(f->exported());
  for (const auto& [name, symbol] : library().dynamic)
    if (symbol.defined) exported.insert(name);
  EXPECT_EQ(exported, expected);
}

TEST(Library, KeepsTheNamesOfAllLevels) {
  for (const auto* f : built()) {
    std::vector<string> names = {f->entry()};
    if (!f->driver().empty()) names.push_back(f->driver());
    for (const auto& k : f->kernels) names.push_back(k.symbol);
    for (const string& name : names) EXPECT_TRUE(library().all.count(name) && library().all.at(name).defined) << name;
  }
}

TEST(Library, SlotsFormOneTableInTheOrderOfTheNames) {
  const auto functions = built();
  const std::size_t size = 4 * sizeof(void*), first = library().all.at(functions[0]->exported() + "_arraddr").address;
  std::size_t place = 0;
  for (const auto* f : functions) {
    const Symbol& slot = library().all.at(f->exported() + "_arraddr");
    EXPECT_EQ(slot.address, first + size * place++) << f->name;
    EXPECT_EQ(slot.size, size);
    const auto* words = library().loaded<const void*>(f->exported() + "_arraddr");
    EXPECT_EQ(words[0], library().loaded<void>(f->entry())) << f->name;
    for (int i = 1; i < 4; ++i) EXPECT_EQ(words[i], nullptr) << f->name;
  }
  std::size_t slots = 0;
  for (const auto& [name, symbol] : library().all) slots += name.ends_with("_arraddr");
  EXPECT_EQ(slots, functions.size());
  EXPECT_EQ(library().all.at("zelJumpIndexForMergedDLL").size, 4u);
  EXPECT_EQ(*library().loaded<std::int32_t>("zelJumpIndexForMergedDLL"), 0);
  EXPECT_EQ(*library().loaded<int>("initialized"), 1);
}

TEST(Library, ImportsWhatAProgramMayPutInFront) {
  const auto functions = built();
  const auto any = [&](auto pick) {
    return std::any_of(functions.begin(), functions.end(), [&](auto* f) { return pick(*f); });
  };
  const bool scratch = any([](auto& f) { return !f.scratch.empty() && !f.cost.empty(); });
  const bool transpose = any([](auto& f) { return f.row->operation == "Transpose"; });
  for (const auto& [name, needed] : std::map<string, bool>{{"ownGetNumThreads", true},
                                                           {"ownGetFeature", true},
                                                           {"kmpc_malloc", scratch},
                                                           {"kmpc_free", scratch},
                                                           {"zelGetMaxCacheSizeB", transpose}}) {
    EXPECT_EQ(library().dynamic.count(name), needed) << name;
    EXPECT_FALSE(library().all.count(name) && library().all.at(name).defined) << name;
  }
  // The loaded library asks this program's definition.
  const auto driver =
      reinterpret_cast<decltype(&zelmAdd_vava_32f)>(const_cast<char*>(library().loaded<char>("p8_ownOMP_zelmAdd_vava_32f")));
  const Threads one({1});
  const float a[2] = {1, 2}, b[2] = {3, 4};
  float d[2];
  EXPECT_EQ(driver(a, 4, 4, b, 4, 4, d, 4, 4, 1, 2), zelStsOk);
  EXPECT_EQ(d[1], 6);
  EXPECT_EQ(imports.asked, 1);
}

TEST(Library, IsHardenedAndItsSlotsAreReadOnly) {
  const auto* header = library().at<ElfW(Ehdr)>(0);
  const auto* segments = library().at<ElfW(Phdr)>(header->e_phoff);
  const std::size_t slots = library().all.at(built().front()->exported() + "_arraddr").address;
  const std::size_t end = slots + built().size() * 4 * sizeof(void*);
  bool relro = false, stack = false, now = false;
  for (int i = 0; i < header->e_phnum; ++i) {
    relro |=
        segments[i].p_type == PT_GNU_RELRO && slots >= segments[i].p_vaddr && end <= segments[i].p_vaddr + segments[i].p_memsz;
    stack |= segments[i].p_type == PT_GNU_STACK && !(segments[i].p_flags & PF_X);
    if (segments[i].p_type != PT_DYNAMIC) continue;
    for (const auto* d = library().at<ElfW(Dyn)>(segments[i].p_offset); d->d_tag != DT_NULL; ++d) {
      now |= d->d_tag == DT_FLAGS && (d->d_un.d_val & DF_BIND_NOW);
      EXPECT_FALSE(d->d_tag == DT_TEXTREL || (d->d_tag == DT_FLAGS && (d->d_un.d_val & DF_TEXTREL)));
    }
  }
  EXPECT_TRUE(relro && stack && now) << relro << stack << now;
}

TEST(Version, TwoRecordsDifferInTheNameAlone) {
  const ZelLibVersion* records[2];
  for (const int feature : {0, 1}) {
    imports.feature = feature;
    const ZelLibVersion* v = records[feature] = zelmGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, zelmGetLibVersion());
    EXPECT_EQ(imports.feature_mask, 128);
    EXPECT_EQ(std::vector({v->versionMajor, v->versionMinor, v->versionPatch, v->revision}), std::vector({7, 1, 1, 37466}));
    EXPECT_EQ(std::memcmp(v->targetTag, "p8\0\0", 4), 0);
    EXPECT_STREQ(v->libraryName, feature ? "zelm SSE4.1/4.2 (p8)+" : "zelm SSE4.1/4.2 (p8)");
    EXPECT_STREQ(v->versionText, "7.1.1 (r37466)");
    EXPECT_STREQ(v->buildDate, "Sep 24 2012");
  }
  imports.feature.reset();
  EXPECT_NE(records[0], records[1]);
  EXPECT_EQ(zelmGetLibVersion(), records[1]) << "the tests run on a processor with SSE4.2";
}

}  // namespace
}  // namespace zelm::test
