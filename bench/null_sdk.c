/* The calls of the SDK that does nothing which have to do something: an answer with ports in it,
 * and a walk. */

#include "sdk/bcm/l2.h"
#include "sdk/bcm/vlan.h"

/* A VLAN holds as many ports as its number says, from port 0 up. */
int bcm_vlan_port_get(int unit, bcm_vlan_t vid, bcm_pbmp_t *pbmp, bcm_pbmp_t *ubmp) {
    unsigned word;
    (void)unit;
    (void)ubmp;
    for (word = 0; word * 32 < vid; ++word)
        pbmp->pbits[word] = vid - word * 32 >= 32 ? ~0U : (1U << (vid - word * 32)) - 1;
    return 0;
}

/* As many entries as the number of the unit says: 256 addresses in each VLAN. */
int bcm_l2_traverse(int unit, bcm_l2_traverse_cb trav_fn, void *user_data) {
    static bcm_l2_addr_t entry = {.mac = {2, 0, 0, 0, 0, 0}};
    int i;
    for (i = 0; i < unit; ++i) {
        entry.flags = i % 16 == 0 ? 0x20 : 0;
        entry.mac[5] = (uint8)i;
        entry.vid = (bcm_vlan_t)(1 + i / 256);
        entry.port = 1 + i % 64;
        trav_fn(0, &entry, user_data);
    }
    return 0;
}
