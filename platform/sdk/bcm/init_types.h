/* Init: what a unit is, and how units come and go. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* The identity of a unit. */
typedef struct bcm_info_s {
    uint32 vendor;
    uint32 device;
    uint32 revision;
    uint32 capability;
    int num_pipes;
} bcm_info_t;

/* A unit as it was attached. */
typedef struct bcm_attach_info_s {
    int unit;
    char const *type;
    char const *subtype;
    int remunit;
} bcm_attach_info_t;

/* How often and at what pace a detach is tried again. */
typedef struct bcm_detach_retry_s {
    uint32 poll_usecs;
    int num_retries;
} bcm_detach_retry_t;

/* Told when a unit comes or goes. */
typedef int (*bcm_attach_cb_t)(int unit, bcm_device_state_t state, bcm_attach_info_t *info,
                               void *user_data);

OMBRA_END_DECLS
