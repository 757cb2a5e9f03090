// ZorvaneInterface as an object of the Visual C++ ABI, for hosts built with that compiler when the
// module is built with GCC. Zorvane.def exports these under the decorated names of the class's
// constructors, assignment, destructor and virtual table.
#if defined(__GNUC__)

#include <windows.h>

namespace
{

// The class has no data: an instance is a pointer to the virtual table.
struct Instance
{
    const void* const* table;
};

constexpr unsigned int kFreeMemory = 1;

} // namespace

extern "C"
{

    extern const void* const ZorvaneTable[];

    Instance* __thiscall ZorvaneConstruct(Instance* self)
    {
        self->table = ZorvaneTable;
        return self;
    }

    Instance* __thiscall ZorvaneCopyConstruct(Instance* self, const Instance*)
    {
        return ZorvaneConstruct(self);
    }

    Instance* __thiscall ZorvaneAssign(Instance* self, const Instance*)
    {
        return self;
    }

    void __thiscall ZorvaneDestruct(Instance* self)
    {
        self->table = ZorvaneTable;
    }

    // The table's only slot, what `delete` calls. A host's `new` takes its memory from the process heap
    // (every Visual C++ runtime since 2012); a block that is none of that heap's is left alone.
    Instance* __thiscall ZorvaneScalarDeletingDestructor(Instance* self, unsigned int flags)
    {
        ZorvaneDestruct(self);
        if ((flags & kFreeMemory) && HeapValidate(GetProcessHeap(), 0, self))
            HeapFree(GetProcessHeap(), 0, self);
        return self;
    }

    // In front of the first slot that ABI keeps the pointer to the type's description. There is none.
    extern const void* const ZorvaneTableWithType[] = {
        nullptr, reinterpret_cast<const void*>(ZorvaneScalarDeletingDestructor)};

    __asm__(".globl _ZorvaneTable\n.set _ZorvaneTable, _ZorvaneTableWithType + 4\n");

} // extern "C"

#endif
