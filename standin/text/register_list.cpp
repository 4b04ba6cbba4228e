// The addresses of every instance and element that a reference means.
#include "standin/text/register_list.h"

#include "sdk/constants.h"
#include "sdk/soc/reg.h"

namespace standin {

int register_addresses(int unit, const RegisterRef &ref, std::size_t limit,
                       std::vector<soc_regaddrinfo_t> &list) {
    list.clear();
    if (ref.address) {
        soc_regaddrinfo_t record{};
        soc_regaddrinfo_get(unit, &record, *ref.address);
        record.addr = *ref.address;
        list.push_back(record);
        return BCM_E_NONE;
    }
    std::size_t indexes = static_cast<std::size_t>(ref.index.high - ref.index.low) + 1;
    if (indexes > limit || ref.ports.size() * indexes > limit) return BCM_E_FULL;
    for (int port : ref.ports) {
        for (int index = ref.index.low; index <= ref.index.high; ++index) {
            if (soc_reg_port_idx_valid(unit, ref.reg, port, index) == 0) return BCM_E_NOT_FOUND;
            soc_regaddrinfo_t record{};
            int block = 0;
            record.addr = soc_reg_addr_get(unit, ref.reg, port, index, 0, &block, &record.acc_type);
            record.valid = 1;
            record.reg = ref.reg;
            record.idx = index;
            record.block = block;
            record.port = port;
            list.push_back(record);
        }
    }
    return BCM_E_NONE;
}

}  // namespace standin
