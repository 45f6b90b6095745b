#include "framework/core/Exception.h"
#include "framework/core/Object.h"

#include <gtest/gtest.h>
#include <memory>

namespace
{
class Shape : public CObject
{
    DECLARE_DYNAMIC(Shape)
};

class Circle : public Shape
{
    DECLARE_DYNCREATE(Circle)
    int m_radius = 7;
};

class Ring : public Circle
{
};

class Hungry : public CObject
{
    DECLARE_DYNCREATE(Hungry)
    Hungry()
    {
        AfxThrowMemoryException();
    }
};

IMPLEMENT_DYNAMIC(Shape, CObject)
IMPLEMENT_DYNCREATE(Circle, Shape)
IMPLEMENT_DYNCREATE(Hungry, CObject)

// Uses a class record while static objects are still being made.
const bool g_recordWorksBeforeMain = RUNTIME_CLASS(Circle)->IsDerivedFrom(RUNTIME_CLASS(CException)) == FALSE &&
                                     RUNTIME_CLASS(Circle)->IsDerivedFrom(RUNTIME_CLASS(CObject)) != FALSE;
} // namespace

TEST(RuntimeClass, DescribesTheClass)
{
    const CRuntimeClass* record = RUNTIME_CLASS(Circle);
    EXPECT_STREQ(record->m_lpszClassName, "Circle");
    EXPECT_EQ(record->m_nObjectSize, static_cast<int>(sizeof(Circle)));
    EXPECT_EQ(record->m_wSchema, 0xFFFFu);
    EXPECT_EQ(record->m_pfnGetBaseClass(), RUNTIME_CLASS(Shape));
    EXPECT_EQ(RUNTIME_CLASS(CObject)->m_pfnGetBaseClass, nullptr);
}

TEST(RuntimeClass, KnowsDerivationOnlyUpwards)
{
    EXPECT_TRUE(RUNTIME_CLASS(Circle)->IsDerivedFrom(RUNTIME_CLASS(Circle)));
    EXPECT_TRUE(RUNTIME_CLASS(Circle)->IsDerivedFrom(RUNTIME_CLASS(Shape)));
    EXPECT_TRUE(RUNTIME_CLASS(Circle)->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(Shape)->IsDerivedFrom(RUNTIME_CLASS(Circle)));
    EXPECT_FALSE(RUNTIME_CLASS(Shape)->IsDerivedFrom(nullptr));
    EXPECT_TRUE(g_recordWorksBeforeMain);
}

TEST(RuntimeClass, CreatesObjectsOfDyncreateClasses)
{
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(Circle)->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(Circle)));
    EXPECT_EQ(static_cast<Circle&>(*made).m_radius, 7);
}

TEST(RuntimeClass, RefusesToCreateOthers)
{
    EXPECT_EQ(RUNTIME_CLASS(Shape)->CreateObject(), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CObject)->CreateObject(), nullptr);
}

TEST(RuntimeClass, AnswersNullWhenMemoryIsShort)
{
    EXPECT_EQ(RUNTIME_CLASS(Hungry)->CreateObject(), nullptr);
}

TEST(RuntimeClass, IsFoundByName)
{
    EXPECT_EQ(CRuntimeClass::FromName("Circle"), RUNTIME_CLASS(Circle));
    EXPECT_EQ(CRuntimeClass::FromName("CMemoryException"), RUNTIME_CLASS(CMemoryException));
    EXPECT_EQ(CRuntimeClass::FromName("circle"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(""), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(nullptr), nullptr);
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("Circle"));
    EXPECT_NE(made, nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("NoSuchClass"), nullptr);
}

TEST(RuntimeClass, LeavesTheListWithItsModule)
{
    CRuntimeClass record = {"Passing", 4, 0xFFFF, nullptr, nullptr, nullptr};
    {
        const vorn::RuntimeClassLink link(record);
        EXPECT_EQ(CRuntimeClass::FromName("Passing"), &record);
    }
    EXPECT_EQ(CRuntimeClass::FromName("Passing"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("Circle"), RUNTIME_CLASS(Circle));
}

TEST(Object, WithoutOwnRecordCountsAsItsBase)
{
    const Ring ring;
    EXPECT_EQ(ring.GetRuntimeClass(), RUNTIME_CLASS(Circle));
    EXPECT_TRUE(ring.IsKindOf(RUNTIME_CLASS(Shape)));
    EXPECT_FALSE(ring.IsSerializable());
}

TEST(Object, DynamicDowncastGivesNullForOtherClasses)
{
    Circle circle;
    CObject* object = &circle;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Circle, object), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, object), nullptr);
    object = nullptr;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Circle, object), nullptr);
}
