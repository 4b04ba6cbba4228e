/* Configuration store: settings by name, and the file behind them. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* The store */
int sal_config_init(void);
void sal_config_init_defaults(void);
int sal_config_refresh(void);
int sal_config_flush(void);
int sal_config_save(char *file, char *pattern, int append);
int sal_config_file_set(char const *fname, char const *tname);
int sal_config_file_get(char const **fname, char const **tname);

/* Settings */
int sal_config_set(char *name, char *value);
char *sal_config_get(char const *name);
int sal_config_get_next(char **name, char **value);
void sal_config_show(void);
void sal_config_dump(void);

OMBRA_END_DECLS
