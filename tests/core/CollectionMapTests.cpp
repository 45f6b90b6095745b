#include "framework/core/Map.h"
#include "framework/core/TypedPtr.h"

#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>

TEST(MapStringToString, InsertsLooksUpAndReplaces)
{
    CMapStringToString map;
    map.SetAt("NM", "nautical mile");
    map["KM"] = "kilometre";
    CString value = "unchanged";
    EXPECT_TRUE(map.Lookup("NM", value));
    EXPECT_EQ(value, "nautical mile");
    EXPECT_FALSE(map.Lookup("nm", value));
    EXPECT_EQ(value, "nautical mile");
    map.SetAt("NM", "1852 m");
    EXPECT_EQ(map["NM"], "1852 m");
    EXPECT_EQ(map.GetCount(), 2);
}

TEST(MapStringToString, IndexingAnUnknownKeyEntersAnEmptyText)
{
    CMapStringToString map;
    EXPECT_TRUE(map["new"].IsEmpty());
    EXPECT_EQ(map.GetCount(), 1);
    CString value;
    EXPECT_TRUE(map.Lookup("new", value));
}

TEST(MapStringToString, AnEmptyMapHasNothing)
{
    CMapStringToString map;
    CString value;
    LPCSTR key = nullptr;
    EXPECT_FALSE(map.Lookup("", value));
    EXPECT_FALSE(map.LookupKey("x", key));
    EXPECT_FALSE(map.RemoveKey("x"));
    EXPECT_EQ(map.PLookup("x"), nullptr);
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(MapStringToString, ANullKeyIsTheEmptyOne)
{
    CMapStringToString map;
    map.SetAt(nullptr, "value");
    CString value;
    EXPECT_TRUE(map.Lookup("", value));
    EXPECT_EQ(value, "value");
    EXPECT_EQ(map.GetCount(), 1);
}

TEST(MapStringToString, LookupKeyPointsToTheMapsOwnCopy)
{
    CMapStringToString map;
    const CString key("ident");
    map.SetAt(key, "BVT");
    LPCSTR own = nullptr;
    EXPECT_TRUE(map.LookupKey("ident", own));
    EXPECT_STREQ(own, "ident");
    LPCSTR again = nullptr;
    EXPECT_TRUE(map.LookupKey("ident", again));
    EXPECT_EQ(own, again);
}

TEST(MapStringToString, RemovesKeys)
{
    CMapStringToString map;
    for (int i = 0; i < 100; ++i)
    {
        CString key;
        key.Format("%d", i);
        map.SetAt(key, key);
    }
    for (int i = 0; i < 100; i += 2)
    {
        CString key;
        key.Format("%d", i);
        EXPECT_TRUE(map.RemoveKey(key));
        EXPECT_FALSE(map.RemoveKey(key));
    }
    EXPECT_EQ(map.GetCount(), 50);
    CString value;
    EXPECT_FALSE(map.Lookup("42", value));
    EXPECT_TRUE(map.Lookup("43", value));
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_FALSE(map.Lookup("43", value));
}

TEST(MapStringToString, IterationMeetsEachEntryOnce)
{
    CMapStringToString map;
    std::set<std::string> expected;
    for (int i = 0; i < 1000; ++i)
    {
        const std::string key = "key" + std::to_string(i);
        map.SetAt(key.c_str(), "v");
        expected.insert(key);
    }
    std::set<std::string> seen;
    CString key;
    CString value;
    for (POSITION at = map.GetStartPosition(); at != nullptr;)
    {
        map.GetNextAssoc(at, key, value);
        EXPECT_TRUE(seen.insert(key.GetString()).second);
        EXPECT_EQ(value, "v");
    }
    EXPECT_EQ(seen, expected);
    INT_PTR count = 0;
    for (auto* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair))
    {
        pair->value = "w";
        ++count;
    }
    EXPECT_EQ(count, 1000);
    EXPECT_EQ(map["key7"], "w");
}

TEST(MapStringToString, TheEntryJustDeliveredMayBeRemoved)
{
    CMapStringToString map;
    for (const char* key : {"a", "b", "c", "d"})
    {
        map.SetAt(key, key);
    }
    CString key;
    CString value;
    for (POSITION at = map.GetStartPosition(); at != nullptr;)
    {
        map.GetNextAssoc(at, key, value);
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_TRUE(map.IsEmpty());
}

TEST(MapStringToString, IteratingFromNowhereThrows)
{
    const CMapStringToString map;
    POSITION none = nullptr;
    CString key;
    CString value;
    EXPECT_THROW(map.GetNextAssoc(none, key, value), CInvalidArgException*);
    EXPECT_THROW(map.PGetNextAssoc(nullptr), CInvalidArgException*);
}

TEST(MapStringToString, HashTableSizeIsChosenWhileEmpty)
{
    CMapStringToString map;
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    map.InitHashTable(101);
    EXPECT_EQ(map.GetHashTableSize(), 101u);
    map.InitHashTable(0);
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    map.InitHashTable(7, FALSE);
    map.SetAt("a", "1");
    EXPECT_EQ(map.GetHashTableSize(), 7u);
#ifdef NDEBUG
    map.InitHashTable(1009);
    EXPECT_EQ(map.GetHashTableSize(), 7u);
#endif
    EXPECT_EQ(map["a"], "1");
}

TEST(MapStringToString, ValuesOfTheSameMapMayBeStoredAgain)
{
    CMapStringToString map;
    map.InitHashTable(1);
    map["first"] = "text";
    for (int i = 0; i < 50; ++i)
    {
        CString key;
        key.Format("copy %d", i);
        map.SetAt(key, map["first"]);
    }
    EXPECT_EQ(map["copy 49"], "text");
    EXPECT_GT(map.GetHashTableSize(), 1u) << "a crowded table grows";
}

TEST(Map, CombinesNumbersAndTexts)
{
    CMap<int, int, CString, const CString&> names;
    names.SetAt(3, "FT");
    names.SetAt(-1, "auto");
    CString name;
    EXPECT_TRUE(names.Lookup(-1, name));
    EXPECT_EQ(name, "auto");
    CMap<CString, const CString&, double, double> factors;
    factors["NM"] = 1852.0;
    double factor = 0;
    EXPECT_TRUE(factors.Lookup("NM", factor));
    EXPECT_EQ(factor, 1852.0);
}

TEST(Map, PointerAndWordMapsWork)
{
    int numbers[2] = {};
    CMapPtrToWord words;
    words[&numbers[0]] = 65535;
    words.SetAt(&numbers[1], 1);
    WORD word = 0;
    EXPECT_TRUE(words.Lookup(&numbers[0], word));
    EXPECT_EQ(word, 65535);
    CMapWordToPtr pointers;
    pointers.SetAt(1, &numbers[1]);
    void* pointer = nullptr;
    EXPECT_TRUE(pointers.Lookup(1, pointer));
    EXPECT_EQ(pointer, &numbers[1]);
    CMapPtrToPtr links;
    links[nullptr] = &numbers[0];
    EXPECT_TRUE(links.Lookup(nullptr, pointer));
    EXPECT_EQ(pointer, &numbers[0]);
}

TEST(Map, HasRuntimeClasses)
{
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("CMapStringToString"));
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMapStringToString)));
}

TEST(TypedPtrMap, ConvertsKeysAndValues)
{
    int seven = 7;
    CTypedPtrMap<CMapStringToPtr, CString, int*> map;
    map["seven"] = &seven;
    int* found = nullptr;
    EXPECT_TRUE(map.Lookup("seven", found));
    EXPECT_EQ(found, &seven);
    POSITION at = map.GetStartPosition();
    CString key;
    found = nullptr;
    map.GetNextAssoc(at, key, found);
    EXPECT_EQ(key, "seven");
    EXPECT_EQ(found, &seven);
    EXPECT_FALSE(map.Lookup("eight", found));
    EXPECT_TRUE(map.RemoveKey("seven"));
}
