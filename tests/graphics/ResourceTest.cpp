// Pictures from resources: the test's own file gets some, and is loaded as a library of resources.
#include "tests/graphics/Samples.h"
#include "vcl/graphics/Icon.h"
#include "vcl/graphics/ImageList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class PictureResources : public testing::Test {
protected:
    void SetUp() override
    {
        wchar_t Folder[MAX_PATH], Own[MAX_PATH];
        GetTempPathW(MAX_PATH, Folder);
        GetTempFileNameW(Folder, L"res", 0, FName);
        GetModuleFileNameW(nullptr, Own, MAX_PATH);
        ASSERT_TRUE(CopyFileW(Own, FName, FALSE));
        FillSample(Picture, 12, 4);
        Dib = SaveToBytes(Picture);
        Dib.erase(Dib.begin(), Dib.begin() + 14);
        TBytes Broken(Dib.begin(), Dib.begin() + 60);

        HANDLE Update = BeginUpdateResourceW(FName, FALSE);
        ASSERT_NE(Update, nullptr);
        Put(Update, MAKEINTRESOURCEW(2), L"PICTURE", Dib);
        Put(Update, MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(77), Dib);
        Put(Update, MAKEINTRESOURCEW(2), L"BROKEN", Broken);
        ASSERT_TRUE(EndUpdateResourceW(Update, FALSE));
        Library = LoadLibraryExW(FName, nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(Library, nullptr);
    }
    void TearDown() override
    {
        FreeLibrary(Library);
        DeleteFileW(FName);
    }

    TBitmap Picture;
    TBytes Dib;
    HMODULE Library = nullptr;

private:
    static void Put(HANDLE Update, const wchar_t* Type, const wchar_t* Name, TBytes& Bytes)
    {
        ASSERT_TRUE(UpdateResourceW(Update, Type, Name, 0, Bytes.data(), static_cast<DWORD>(Bytes.size())));
    }

    wchar_t FName[MAX_PATH] = {};
};

} // namespace

TEST_F(PictureResources, BitmapsAreFoundByNameAndNumber)
{
    TBitmap ByName, ByNumber;
    ByName.LoadFromResourceName(Library, "PICTURE");
    ByNumber.LoadFromResourceID(Library, 77);
    EXPECT_EQ(ByName.PixelFormat, pf32bit);
    EXPECT_EQ(PixelsOf(ByName), PixelsOf(Picture));
    EXPECT_EQ(PixelsOf(ByNumber), PixelsOf(Picture));
}

TEST_F(PictureResources, AMissingOneRaises)
{
    auto Bitmap = NewBitmap(2, 2);
    TIcon Icon;
    for (auto Load : {+[](TBitmap& B, TIcon&, HMODULE L) { B.LoadFromResourceName(L, "Ничто"); },
                      +[](TBitmap&, TIcon& I, HMODULE L) { I.LoadFromResourceName(L, "Ничто"); }}) {
        try {
            Load(*Bitmap, Icon, Library);
            ADD_FAILURE();
        } catch (const EResNotFound& Error) {
            EXPECT_EQ(Error.Message, "Resource Ничто not found");
        }
    }
    EXPECT_THROW(Bitmap->LoadFromResourceID(Library, 1234), EResNotFound);
    EXPECT_EQ(Bitmap->Width, 2);
}

TEST_F(PictureResources, ABrokenOneRaises)
{
    auto Bitmap = NewBitmap(2, 2);
    EXPECT_THROW(Bitmap->LoadFromResourceName(Library, "BROKEN"), EInvalidGraphic);
    EXPECT_EQ(Bitmap->Width, 2);
}

TEST_F(PictureResources, ImageListsTakeAStrip)
{
    TImageList List(nullptr, 4, 4);
    EXPECT_FALSE(List.ResourceLoad(Library, "NOTHING", clNone));
    EXPECT_TRUE(List.ResourceLoad(Library, "PICTURE", clNone));
    EXPECT_EQ(List.Count, 3);
}
