#pragma once

#include "mfc/parts/Platform.h"

class CObject;

/// What is known of a class at run time. One constant object per class, made by IMPLEMENT_DYNAMIC
/// or IMPLEMENT_DYNCREATE.
struct CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject* (*m_pfnCreateObject)();
    const CRuntimeClass* m_pBaseClass;

    /// A new object on the heap, owned by the caller; null for a class that can't be created so.
    CObject* CreateObject() const;
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// Root of the framework's classes.
class CObject
{
public:
    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    static const CRuntimeClass classCObject;

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (const_cast<CRuntimeClass*>(&class_name::class##class_name))

#define DECLARE_DYNAMIC(class_name)                                                                \
public:                                                                                            \
    static const CRuntimeClass class##class_name;                                                  \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                              \
    DECLARE_DYNAMIC(class_name)                                                                    \
    static CObject* CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                            \
    const CRuntimeClass class_name::class##class_name = {                                          \
        #class_name, sizeof(class_name), 0xFFFF, create,                                           \
        &base_class_name::class##base_class_name};                                                 \
    CRuntimeClass* class_name::GetRuntimeClass() const                                             \
    {                                                                                              \
        return RUNTIME_CLASS(class_name);                                                          \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                           \
    CObject* class_name::CreateObject()                                                            \
    {                                                                                              \
        return new class_name;                                                                     \
    }                                                                                              \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, class_name::CreateObject)

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);

#define DYNAMIC_DOWNCAST(class_name, object)                                                       \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
