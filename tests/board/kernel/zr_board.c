// SPDX-License-Identifier: GPL-3.0-or-later
/*
 * What the instrument's board has and a virtual machine lacks: the platform device pmmcu.0 with the brightness of the
 * screen, and /proc/apm as the kernel's APM emulation writes it (drivers/char/apm-emulation.c).
 *
 * The charge is set through /sys/module/zr_board/parameters/charge.
 */
#include <linux/device.h>
#include <linux/err.h>
#include <linux/module.h>
#include <linux/platform_device.h>
#include <linux/proc_fs.h>
#include <linux/seq_file.h>

static int charge = 83;
module_param(charge, int, 0644);
MODULE_PARM_DESC(charge, "charge of the battery in per cent, -1 where it is unknown");

static unsigned char brightness = 255;

static ssize_t brightness_show(struct device *device, struct device_attribute *attribute, char *text)
{
	return sysfs_emit(text, "%u\n", brightness);
}

static ssize_t brightness_store(struct device *device, struct device_attribute *attribute, const char *text,
				size_t length)
{
	int error = kstrtou8(text, 0, &brightness);

	return error ? error : length;
}
static DEVICE_ATTR_RW(brightness);

static struct attribute *board_attrs[] = { &dev_attr_brightness.attr, NULL };
ATTRIBUTE_GROUPS(board);

static struct platform_driver board_driver = {
	.driver = { .name = "pmmcu", .dev_groups = board_groups },
};
static struct platform_device *board;

static int apm_show(struct seq_file *file, void *unused)
{
	seq_printf(file, "1.13 1.2 0x02 0x00 0x00 0xff %d%% -1 ?\n", charge);
	return 0;
}

static int __init board_init(void)
{
	int error = platform_driver_register(&board_driver);

	if (error)
		return error;
	board = platform_device_register_simple("pmmcu", 0, NULL, 0);
	if (IS_ERR(board)) {
		platform_driver_unregister(&board_driver);
		return PTR_ERR(board);
	}
	proc_create_single("apm", 0, NULL, apm_show);
	return 0;
}
module_init(board_init);

static void __exit board_exit(void)
{
	remove_proc_entry("apm", NULL);
	platform_device_unregister(board);
	platform_driver_unregister(&board_driver);
}
module_exit(board_exit);

MODULE_DESCRIPTION("Brightness and battery of the instrument's board");
MODULE_LICENSE("GPL");
