#pragma once
// SHA-256 from libSystem's CommonCrypto, as its CC_SHA256(3cc) man page gives it.
#include <stdint.h>
typedef uint32_t CC_LONG;
#define CC_SHA256_DIGEST_LENGTH 32
#define CC_SHA256_BLOCK_BYTES 64
typedef struct CC_SHA256state_st {
    uint32_t count[2];
    uint32_t hash[8];
    uint32_t wbuf[16];
} CC_SHA256_CTX;
#ifdef __cplusplus
extern "C" {
#endif
unsigned char* CC_SHA256(const void* data, CC_LONG len, unsigned char* md);
int CC_SHA256_Init(CC_SHA256_CTX* c);
int CC_SHA256_Update(CC_SHA256_CTX* c, const void* data, CC_LONG len);
int CC_SHA256_Final(unsigned char* md, CC_SHA256_CTX* c);
#ifdef __cplusplus
}
#endif
