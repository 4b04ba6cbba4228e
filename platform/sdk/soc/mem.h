/* Memories: the tables of a chip, read and written by entry. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

int soc_mem_read(int unit, int mem, int copyno, int index, unsigned int *entry_data);
int soc_mem_write(int unit, int mem, int copyno, int index, unsigned int *entry_data);
int soc_mem_array_read(int unit, int mem, unsigned int array_index, int copyno, int index,
                       void *entry_data);
int soc_mem_array_write(int unit, int mem, unsigned int array_index, int copyno, int index,
                        void *entry_data);
uint32 soc_mem_field32_get(int unit, int mem, unsigned int *entry_data, int field);
void soc_mem_watch_set(int unit, int value);

OMBRA_END_DECLS
