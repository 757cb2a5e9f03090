#include <afx.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{
class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)
};

class CDog : public CAnimal
{
    DECLARE_DYNCREATE(CDog)

public:
    ~CDog() override { ++destroyed; }
    static int destroyed;
};

class CCat : public CAnimal
{
    DECLARE_DYNAMIC(CCat)
};

int CDog::destroyed = 0;

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)
IMPLEMENT_DYNAMIC(CCat, CAnimal)
} // namespace

TEST(RuntimeClass, KnowsItsName)
{
    const CDog dog;
    EXPECT_STREQ("CDog", dog.GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(CDog)), dog.GetRuntimeClass()->m_nObjectSize);
    const CObject& object = dog;
    EXPECT_EQ(RUNTIME_CLASS(CDog), object.GetRuntimeClass());
}

TEST(RuntimeClass, IsKindOfWalksUp)
{
    const CDog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CCat)));
    EXPECT_TRUE(RUNTIME_CLASS(CButton)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(RUNTIME_CLASS(CWnd)->IsDerivedFrom(RUNTIME_CLASS(CButton)));
}

TEST(RuntimeClass, CreatesWhatCanBeCreated)
{
    CDog::destroyed = 0;
    {
        const std::unique_ptr<CObject> made(RUNTIME_CLASS(CDog)->CreateObject());
        ASSERT_NE(nullptr, made);
        EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CDog)));
    }
    EXPECT_EQ(1, CDog::destroyed) << "the destructor is virtual";
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CCat)->CreateObject());
}

TEST(RuntimeClass, DynamicDowncast)
{
    CDog dog;
    CAnimal* animal = &dog;
    EXPECT_EQ(&dog, DYNAMIC_DOWNCAST(CDog, animal));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CCat, animal));
    CCat cat;
    EXPECT_EQ(&cat, DYNAMIC_DOWNCAST(CCat, static_cast<CObject*>(&cat)));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CDog, static_cast<CObject*>(nullptr)));
}

TEST(Exceptions, SharedOnesAreNotDeleted)
{
    for (int i = 0; i < 2; ++i)
    {
        try
        {
            AfxThrowResourceException();
        }
        catch (CException* e)
        {
            EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CResourceException)));
            char text[64] = "";
            EXPECT_TRUE(e->GetErrorMessage(text, sizeof(text)));
            EXPECT_STRNE("", text);
            e->Delete();
        }
    }
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
}

TEST(Exceptions, MessageIsCutAtTheBuffer)
{
    char text[8] = "xxxxxxx";
    CMemoryException exception(FALSE);
    EXPECT_TRUE(exception.GetErrorMessage(text, 4));
    EXPECT_EQ(3u, strlen(text));
    EXPECT_EQ('x', text[4]);
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 4));
    CException plain(FALSE);
    EXPECT_FALSE(plain.GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ("", text);
}

TEST(Exceptions, OwnOnesAreDeleted)
{
    static int destroyed;
    destroyed = 0;
    class COwn : public CException
    {
    public:
        ~COwn() override { ++destroyed; }
    };
    try
    {
        throw new COwn;
    }
    catch (CException* e)
    {
        e->Delete();
    }
    EXPECT_EQ(1, destroyed);
}
