#pragma once
// The blocks runtime's copy and release, from the Blocks ABI clang documents
// (clang.llvm.org/docs/Block-ABI-Apple.html) and Apple's Block_copy reference.
#ifdef __cplusplus
extern "C" {
#endif
void* _Block_copy(const void* aBlock);
void _Block_release(const void* aBlock);
#ifdef __cplusplus
}
#endif
#define Block_copy(...) ((__typeof(__VA_ARGS__))_Block_copy((const void*)(__VA_ARGS__)))
#define Block_release(...) _Block_release((const void*)(__VA_ARGS__))
