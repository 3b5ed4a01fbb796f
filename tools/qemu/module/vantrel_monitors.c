// SPDX-License-Identifier: GPL-2.0
/*
 * Monitors that speak DDC/CI, on I2C buses of the graphics device: for trying what talks
 * to monitors on a real kernel, without any.
 *
 * Each bus has a monitor at 0x37 and its EDID at 0x50. A monitor takes 40 ms for a reply,
 * as DDC/CI allows; read earlier, it has nothing to say.
 */

#include <linux/delay.h>
#include <linux/i2c.h>
#include <linux/ktime.h>
#include <linux/module.h>
#include <linux/pci.h>
#include <linux/platform_device.h>
#include <linux/slab.h>

#define MOST_MONITORS 4

#define MONITOR_ADDRESS 0x37
#define EDID_ADDRESS 0x50
/* Eight bits, as they count for checksums (VESA DDC/CI 1.1, section 1.6). */
#define MONITOR_WRITE_ADDRESS 0x6e
#define HOST_ADDRESS 0x51
#define REPLY_CHECKSUM_START 0x50

#define GET_VCP 0x01
#define GET_VCP_REPLY 0x02
#define SET_VCP 0x03
#define CAPABILITIES_REQUEST 0xf3
#define CAPABILITIES_REPLY 0xe3

#define FRAGMENT_SIZE 32
#define LONGEST_PAYLOAD (FRAGMENT_SIZE + 3)
#define REPLY_LATENCY_MS 40
/* 100 kHz: nine bits per byte. */
#define BYTE_TIME_US 90

static int monitors = 2;
module_param(monitors, int, 0444);
MODULE_PARM_DESC(monitors, "How many there are, 1 to 4");

static int fail_next;
module_param(fail_next, int, 0644);
MODULE_PARM_DESC(fail_next, "So many of the next transfers are not acknowledged");

struct feature {
	u8 code;
	u16 current_value;
	u16 maximum;
};

static const struct feature usual_features[] = {
	{ 0x10, 60, 100 },
	{ 0x12, 75, 100 },
	{ 0x60, 0x0f, 0x12 },
	{ 0x62, 30, 100 },
	{ 0xdf, 0x0201, 0xffff },
};

static const char capabilities[] =
	"(prot(monitor)type(LCD)model(Q27)cmds(01 02 03 07 0C E3 F3)"
	"vcp(10 12 60(0F 11 12) 62 DF)mswhql(1)mccs_ver(2.1))";

/* The bus's lock guards all of it: i2c-core holds it during a transfer. */
struct monitor {
	struct i2c_adapter adapter;
	u8 edid[128];
	u8 edid_offset;
	struct feature features[ARRAY_SIZE(usual_features)];
	u8 reply[LONGEST_PAYLOAD + 3];
	size_t reply_size;
	ktime_t reply_ready;
};

static struct monitor *all[MOST_MONITORS];
static struct pci_dev *graphics;
static struct platform_device *substitute;

static void frame(u8 *bytes, const u8 *payload, size_t size)
{
	u8 checksum = REPLY_CHECKSUM_START;
	size_t i;

	bytes[0] = MONITOR_WRITE_ADDRESS;
	bytes[1] = 0x80 | size;
	memcpy(bytes + 2, payload, size);
	for (i = 0; i < size + 2; i++)
		checksum ^= bytes[i];
	bytes[size + 2] = checksum;
}

static void expect_reply(struct monitor *monitor, const u8 *payload, size_t size)
{
	frame(monitor->reply, payload, size);
	monitor->reply_size = size + 3;
	monitor->reply_ready = ktime_add_ms(ktime_get(), REPLY_LATENCY_MS);
}

static struct feature *find_feature(struct monitor *monitor, u8 code)
{
	size_t i;

	for (i = 0; i < ARRAY_SIZE(monitor->features); i++)
		if (monitor->features[i].code == code)
			return &monitor->features[i];
	return NULL;
}

static void get_feature(struct monitor *monitor, u8 code)
{
	const struct feature *feature = find_feature(monitor, code);
	u8 payload[8] = { GET_VCP_REPLY, feature ? 0 : 1, code };

	if (feature) {
		payload[4] = feature->maximum >> 8;
		payload[5] = feature->maximum & 0xff;
		payload[6] = feature->current_value >> 8;
		payload[7] = feature->current_value & 0xff;
	}
	expect_reply(monitor, payload, sizeof(payload));
}

static void set_feature(struct monitor *monitor, u8 code, u16 value)
{
	struct feature *feature = find_feature(monitor, code);

	if (feature)
		feature->current_value = value;
}

static void get_fragment(struct monitor *monitor, u16 offset)
{
	const size_t length = sizeof(capabilities) - 1;
	const size_t left = offset < length ? length - offset : 0;
	const size_t size = min_t(size_t, left, FRAGMENT_SIZE);
	u8 payload[LONGEST_PAYLOAD] = { CAPABILITIES_REPLY, offset >> 8, offset & 0xff };

	memcpy(payload + 3, capabilities + offset, size);
	expect_reply(monitor, payload, size + 3);
}

static bool is_message(const u8 *bytes, size_t size)
{
	u8 checksum = MONITOR_WRITE_ADDRESS;
	size_t i;

	if (size < 4 || bytes[0] != HOST_ADDRESS || size != (bytes[1] & 0x7f) + 3)
		return false;
	for (i = 0; i < size; i++)
		checksum ^= bytes[i];
	return checksum == 0;
}

static void hear(struct monitor *monitor, const u8 *bytes, size_t size)
{
	const u8 *payload = bytes + 2;

	monitor->reply_size = 0;
	if (!is_message(bytes, size))
		return;
	if (payload[0] == GET_VCP && size == 5)
		get_feature(monitor, payload[1]);
	else if (payload[0] == SET_VCP && size == 7)
		set_feature(monitor, payload[1], payload[2] << 8 | payload[3]);
	else if (payload[0] == CAPABILITIES_REQUEST && size == 6)
		get_fragment(monitor, payload[1] << 8 | payload[2]);
}

static void speak(struct monitor *monitor, u8 *bytes, size_t size)
{
	u8 nothing[3];
	size_t i;

	frame(nothing, NULL, 0);
	for (i = 0; i < size; i++)
		bytes[i] = nothing[i % sizeof(nothing)];
	if (monitor->reply_size == 0 || ktime_before(ktime_get(), monitor->reply_ready))
		return;
	memcpy(bytes, monitor->reply, min(size, monitor->reply_size));
	monitor->reply_size = 0;
}

static int transfer_one(struct monitor *monitor, struct i2c_msg *message)
{
	const bool is_read = message->flags & I2C_M_RD;
	const unsigned int time = BYTE_TIME_US * (message->len + 1);
	size_t i;

	usleep_range(time, time + BYTE_TIME_US);
	if (message->addr == MONITOR_ADDRESS) {
		if (is_read)
			speak(monitor, message->buf, message->len);
		else
			hear(monitor, message->buf, message->len);
		return 0;
	}
	if (message->addr == EDID_ADDRESS) {
		if (!is_read && message->len > 0)
			monitor->edid_offset = message->buf[0];
		for (i = 0; is_read && i < message->len; i++)
			message->buf[i] = monitor->edid[monitor->edid_offset++ % sizeof(monitor->edid)];
		return 0;
	}
	return -ENXIO;
}

static int transfer(struct i2c_adapter *adapter, struct i2c_msg *messages, int count)
{
	struct monitor *monitor = i2c_get_adapdata(adapter);
	int i, error;

	if (fail_next > 0) {
		fail_next--;
		return -ENXIO;
	}
	for (i = 0; i < count; i++) {
		error = transfer_one(monitor, &messages[i]);
		if (error)
			return error;
	}
	return count;
}

static u32 functionality(struct i2c_adapter *adapter)
{
	return I2C_FUNC_I2C | I2C_FUNC_SMBUS_EMUL;
}

static const struct i2c_algorithm algorithm = {
	.master_xfer = transfer,
	.functionality = functionality,
};

/* EDID 1.4 with an identity, one timing of 1920 x 1080, and a name. */
static void make_edid(u8 *edid, int number)
{
	static const u8 start[] = {
		0x00, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x00, 0x45, 0x0c, 0x00, 0x27, 0, 0, 0, 0,
		10, 35, 1, 4, 0xa5, 60, 34, 120, 0x06, 0xee, 0x91, 0xa3, 0x54, 0x4c, 0x99, 0x26, 0x0f, 0x50, 0x54,
	};
	static const u8 timing[] = {
		0x02, 0x3a, 0x80, 0x18, 0x71, 0x38, 0x2d, 0x40, 0x58, 0x2c, 0x45, 0x00, 0x56, 0x50, 0x21, 0x00, 0x00, 0x1e,
	};
	u8 sum = 0;
	int i;

	memcpy(edid, start, sizeof(start));
	edid[10] = number;
	edid[12] = number;
	memset(edid + 38, 1, 16);
	memcpy(edid + 54, timing, sizeof(timing));
	edid[72 + 3] = 0xfc;
	snprintf(edid + 77, 14, "Halden Q%d\n   ", number);
	edid[90 + 3] = 0x10;
	edid[108 + 3] = 0x10;
	for (i = 0; i < 127; i++)
		sum += edid[i];
	edid[127] = -sum;
}

static struct monitor *add_monitor(int number, struct device *parent)
{
	struct monitor *monitor = kzalloc(sizeof(*monitor), GFP_KERNEL);
	int error;

	if (!monitor)
		return ERR_PTR(-ENOMEM);
	make_edid(monitor->edid, number);
	memcpy(monitor->features, usual_features, sizeof(usual_features));
	monitor->adapter.owner = THIS_MODULE;
	monitor->adapter.algo = &algorithm;
	monitor->adapter.dev.parent = parent;
	snprintf(monitor->adapter.name, sizeof(monitor->adapter.name), "DDC line %d", number);
	i2c_set_adapdata(&monitor->adapter, monitor);
	error = i2c_add_adapter(&monitor->adapter);
	if (error) {
		kfree(monitor);
		return ERR_PTR(error);
	}
	return monitor;
}

static struct pci_dev *find_graphics(void)
{
	struct pci_dev *device = NULL;

	for_each_pci_dev(device)
		if (device->class >> 16 == PCI_BASE_CLASS_DISPLAY)
			return device;
	return NULL;
}

static void remove_all(void)
{
	int i;

	for (i = 0; i < MOST_MONITORS; i++) {
		if (!all[i])
			continue;
		i2c_del_adapter(&all[i]->adapter);
		kfree(all[i]);
		all[i] = NULL;
	}
	platform_device_unregister(substitute);
	pci_dev_put(graphics);
}

static int __init add_all(void)
{
	struct device *parent;
	int i;

	if (monitors < 1 || monitors > MOST_MONITORS)
		return -EINVAL;
	graphics = find_graphics();
	if (!graphics) {
		substitute = platform_device_register_simple("vantrel_monitors", -1, NULL, 0);
		if (IS_ERR(substitute))
			return PTR_ERR(substitute);
	}
	parent = graphics ? &graphics->dev : &substitute->dev;
	for (i = 0; i < monitors; i++) {
		struct monitor *monitor = add_monitor(i + 1, parent);

		if (IS_ERR(monitor)) {
			remove_all();
			return PTR_ERR(monitor);
		}
		all[i] = monitor;
	}
	return 0;
}

module_init(add_all);
module_exit(remove_all);

MODULE_DESCRIPTION("Monitors that speak DDC/CI, on I2C buses");
MODULE_LICENSE("GPL");
